#pragma once

#include "ui/text_box.h"

#include <QPointer>

#include <vector>

namespace ui {

class QuietText;

/// The line that says how a check came out: a disc with a tick or a cross at its left, the
/// text exactly as given, and a gold star behind it when it was right. The box that was judged
/// gets an edge in the same colour, the mascot its pose. A change is announced to assistive
/// tools.
class VerdictBox : public TextBox {
public:
    enum class Mark { None, Right, Wrong };

    explicit VerdictBox(QWidget* parent);

    /// The answer boxes whose edge tells the verdict too, until they are typed into.
    void setJudged(const std::vector<TextBox*>& answers);

    void setVerdict(const QString& text, Mark mark);
    /// Shows a text that is no verdict, and announces nothing: whoever shows it has words of its
    /// own for it.
    void setPlainText(const QString& text) { change(text, Mark::None); }
    /// What the verdict was about is gone: its text stays, quiet and without its mark, until
    /// the next verdict.
    void retire();
    Mark mark() const { return m_mark; }

    /// The diameter of the disc, in pixels at factor 1; never more than the box is high.
    void setMarkSize(double pixels);

    void setFactor(double factor) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void change(const QString& text, Mark mark);
    double discSize() const;
    void makeRoom();
    void edgeJudged();
    void drawStarBehindText(QPainter& painter) const;

    Mark m_mark = Mark::None;
    double m_markSize = 36;
    std::vector<QPointer<TextBox>> m_judged;
    QuietText* m_quiet; ///< while a verdict is retired
};

} // namespace ui
