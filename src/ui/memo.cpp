#include "ui/memo.h"

#include "ui/look.h"

#include <QPainter>

#include <algorithm>

namespace ui {

Memo::Memo(Kind kind, QWidget* parent)
    : QPlainTextEdit(parent)
    , m_kind(kind)
{
    setTabChangesFocus(true);
    if (m_kind == Kind::Entry) {
        setCursorWidth(0); // the toolkit's is painted in the inverse of the ground
        connect(this, &QPlainTextEdit::cursorPositionChanged, viewport(),
            qOverload<>(&QWidget::update));
        return;
    }
    setReadOnly(true);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setPalette(look::displayed());
}

void Memo::setFactor(double factor)
{
    Scalable::setFactor(factor);
    const bool entry = m_kind == Kind::Entry;
    const int corner = entry ? qRound(look::CornerMargin * factor) : 0;
    setViewportMargins(corner, corner, corner, corner);
    document()->setDocumentMargin(entry ? (look::BoxMargin - look::CornerMargin) * factor : 0);
}

void Memo::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    if (!isReadOnly())
        setSurface(look::CardFocused);
}

void Memo::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (!isReadOnly())
        setSurface(look::Card);
}

void Memo::setSurface(QRgb surface)
{
    QPalette own = palette();
    own.setColor(QPalette::Base, QColor(surface));
    setPalette(own); // of the margins, and of the viewport, which follows
}

void Memo::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    if (!hasFocus() || isReadOnly() || textCursor().hasSelection())
        return;
    QRect caret = cursorRect();
    caret.setWidth(std::max(1, qRound(look::thick(look::CaretWidth) * factor())));
    QPainter(viewport()).fillRect(caret, QColor(look::Focus));
}

} // namespace ui
