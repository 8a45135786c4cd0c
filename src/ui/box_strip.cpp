#include "ui/box_strip.h"

#include "ui/look.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLayout>
#include <QPainter>

namespace ui {

void BoxStrip::layUnderButtons(QDialog& box)
{
    if (auto* buttons = box.findChild<QDialogButtonBox*>())
        new BoxStrip(box, *buttons);
}

BoxStrip::BoxStrip(QDialog& box, QDialogButtonBox& buttons)
    : QWidget(&box)
    , m_buttons(buttons)
{
    QPalette onSlate = m_buttons.palette();
    onSlate.setColor(QPalette::Highlight, QColor(look::FocusOnSlate)); // of the focus mark
    m_buttons.setPalette(onSlate);
    m_buttons.installEventFilter(this);
    box.installEventFilter(this);
    lower();
}

void BoxStrip::follow()
{
    const QWidget& box = *parentWidget();
    const int margin = box.layout()->contentsMargins().bottom();
    const int top = m_buttons.y() - margin;
    setGeometry(0, top, box.width(), box.height() - top);
}

bool BoxStrip::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize
        || event->type() == QEvent::Show)
        follow();
    return QWidget::eventFilter(watched, event);
}

void BoxStrip::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), QColor(look::Slate));
}

} // namespace ui
