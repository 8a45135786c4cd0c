#pragma once

#include "ui/scaling.h"

#include <QPlainTextEdit>

namespace ui {

/// A text box of several lines: an entry box, or a text that is only shown. A selected text
/// stays highlighted without the focus.
class Memo : public QPlainTextEdit, public Scalable {
public:
    enum class Kind {
        Entry, ///< framed, typed into; Tab leaves it
        Display ///< no frame, no fill, read-only, not in the tab order, deaf to the mouse
    };

    Memo(Kind kind, QWidget* parent);

    void setFactor(double factor) override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setSurface(QRgb surface);

    Kind m_kind;
};

} // namespace ui
