#include "games/backdrop.h"

#include <QPainter>
#include <QPaintEvent>

namespace games {

Backdrop::Backdrop(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Backdrop::redraw()
{
    m_picture = {};
    update();
}

void Backdrop::paintEvent(QPaintEvent* event)
{
    const double ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (m_picture.size() != pixels) {
        m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(ratio);
        QPainter painter(&m_picture);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
    }
    QPainter painter(this);
    for (const QRectF area : event->region())
        painter.drawPixmap(area, m_picture, QRectF(area.topLeft() * ratio, area.size() * ratio));
}

} // namespace games
