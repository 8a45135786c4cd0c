#include "games/rain_drop.h"

#include "ui/look.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace games {

namespace {

constexpr double EdgeWidth = 1.5; // pixels at factor 1
constexpr double HoverEdgeWidth = 2.5;
constexpr QRgb EdgeColour = 0xFFF4F6FF; // pale: also the blue drop stands out from the sky

/// The belly of a drop that fills the rectangle: a circle as wide as the drop.
QRectF belly(const QRectF& drop)
{
    return {drop.left(), drop.bottom() - drop.width(), drop.width(), drop.width()};
}

QPainterPath outline(const QRectF& drop)
{
    const QRectF circle = belly(drop);
    const double middle = circle.center().x();
    const double shoulder = circle.center().y();
    const double neck = drop.top() + (shoulder - drop.top()) * 0.4;
    const double waist = circle.width() * 0.13;
    QPainterPath path(QPointF(middle, drop.top()));
    path.cubicTo(middle + waist, neck, circle.right(), shoulder - circle.height() * 0.3,
        circle.right(), shoulder);
    path.arcTo(circle, 0, -180);
    path.cubicTo(circle.left(), shoulder - circle.height() * 0.3, middle - waist, neck, middle,
        drop.top());
    path.closeSubpath();
    return path;
}

void drawGleam(QPainter& painter, const QRectF& circle)
{
    painter.save();
    painter.translate(circle.center() + QPointF(-0.18, -0.32) * circle.width());
    painter.rotate(-38);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 190));
    const double length = circle.width() * 0.085;
    painter.drawEllipse(QPointF(0, 0), length, length * 0.5);
    painter.restore();
}

} // namespace

RainDrop::RainDrop(QWidget* parent)
    : Button({}, Qt::white, parent)
{
    setCursor(Qt::PointingHandCursor);
}

int RainDrop::digitPixels(const QString& number)
{
    switch (number.size()) {
    case 0:
    case 1:
    case 2:
        return 25;
    case 3:
        return 20;
    case 4:
        return 15;
    default:
        return 12;
    }
}

RainDrop::Looks RainDrop::looks() const
{
    const QRgb fill = palette().color(QPalette::Active, QPalette::Button).rgba();
    return {size() * devicePixelRatioF(), fill, text(), underMouse(), isDown()};
}

void RainDrop::paintEvent(QPaintEvent*)
{
    if (m_drawn != looks()) {
        m_drawn = looks();
        draw();
    }
    QPainter(this).drawPixmap(0, 0, m_picture);
}

void RainDrop::draw()
{
    m_picture = QPixmap(m_drawn.size);
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    m_picture.fill(Qt::transparent);

    const double edge = ui::look::thick(m_drawn.hover ? HoverEdgeWidth : EdgeWidth) * factor();
    const QRectF drop = QRectF(rect()).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2);
    const QColor fill(m_drawn.fill);
    QPainter painter(&m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(EdgeColour), edge, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(m_drawn.down ? fill.darker(115) : fill);
    painter.drawPath(outline(drop));
    drawGleam(painter, belly(drop));
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Active, QPalette::ButtonText));
    painter.drawText(belly(rect()), Qt::AlignCenter, m_drawn.text);
}

void RainDrop::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        click();
}

} // namespace games
