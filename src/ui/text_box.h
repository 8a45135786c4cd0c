#pragma once

#include "ui/scaling.h"

#include <QColor>
#include <QLineEdit>

#include <optional>

namespace ui {

/// A line of text: an entry box, or a text that is only shown. A selected text stays
/// highlighted while the box has no focus and while its window is not the active one. A tool tip
/// comes up over a text that is deaf to the mouse too.
class TextBox : public QLineEdit, public Scalable {
public:
    enum class Kind {
        Entry, ///< framed, typed into
        Display ///< no frame, no fill, read-only, not in the tab order, deaf to the mouse
    };

    TextBox(Kind kind, QWidget* parent);

    Kind kind() const { return m_kind; }

    void setFactor(double factor) override;

    /// Lets a text that is only shown take the focus, and the mouse with it.
    void allowFocus(Qt::FocusPolicy policy);

    /// Gives the box an edge of this colour, thick enough to be seen from afar; none: as ever.
    void setEdge(const std::optional<QColor>& colour);
    std::optional<QColor> edge() const { return m_edge; }

    /// Highlights the whole text, for as long as it is not changed or deselected.
    void showSelected();
    /// Selects the whole text, for the next typed character to replace it.
    void selectAll();
    /// Whether what is selected was selected by whoever writes in the box, not for them: screen
    /// readers say every change of a selection that they are told of.
    bool isSelectedByHand() const { return m_byHand && hasSelectedText(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    /// Where the caret is painted; it neither blinks nor stands beside a selection.
    virtual QRect caretRect() const;

    /// Space for text, in pixels at factor 1, beyond the usual margin.
    void setExtraMargins(double left, double right);

private:
    void hideOrdinaryCaret();
    void drawEdge();
    void select(int start, int length);

    Kind m_kind;
    bool m_selecting = false; ///< the program is
    bool m_byHand = false; ///< what is selected was
    double m_extraLeft = 0;
    double m_extraRight = 0;
    std::optional<QColor> m_edge;
};

} // namespace ui
