#include "ui/memo.h"

#include "ui/look.h"

namespace ui {

Memo::Memo(Kind kind, QWidget* parent)
    : QPlainTextEdit(parent)
    , m_kind(kind)
{
    setTabChangesFocus(true);
    if (m_kind == Kind::Entry)
        return;
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

} // namespace ui
