#pragma once

#include "ui/scaling.h"

#include <QLineEdit>

#include <optional>

namespace ui {

/// A line of text: an entry box, or a text that is only shown. A selected text stays
/// highlighted while the box has no focus and while its window is not the active one.
class TextBox : public QLineEdit, public Scalable {
public:
    enum class Kind {
        Entry, ///< framed, typed into
        Display ///< no frame, no fill, read-only, not in the tab order, deaf to the mouse
    };

    TextBox(Kind kind, QWidget* parent);

    void setFactor(double factor) override;

    /// Lets a text that is only shown take the focus, and the mouse with it.
    void allowFocus(Qt::FocusPolicy policy);

    /// Highlights the whole text, for as long as it is not changed or deselected.
    void showSelected();

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    /// Space for text, in pixels at factor 1, beyond the usual margin.
    void setExtraMargins(double left, double right);

private:
    Kind m_kind;
    double m_extraLeft = 0;
    double m_extraRight = 0;
};

/// The line that says how a check came out: a tick or a cross at its left, and the text
/// exactly as given. A change is announced to assistive tools.
class VerdictBox : public TextBox {
public:
    enum class Mark { None, Right, Wrong };

    explicit VerdictBox(QWidget* parent);

    void setVerdict(const QString& text, Mark mark);
    /// What the verdict was about is gone: its text stays, quiet and without its mark, until
    /// the next verdict.
    void retire();
    Mark mark() const { return m_mark; }

    /// The side of the tick or cross, in pixels at factor 1.
    void setMarkSize(double pixels);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Mark m_mark = Mark::None;
    double m_markSize = 18;
    std::optional<QPalette> m_palette; ///< of the next verdict, while one is retired
};

} // namespace ui
