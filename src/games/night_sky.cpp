#include "games/night_sky.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <random>

namespace games {

namespace {

constexpr int PixelsPerStar = 3600; // at factor 1
constexpr unsigned StarSeed = 7; // the same sky every night
constexpr QRgb Top = 0xFF1B2440;
constexpr QRgb Bottom = 0xFF31406B;
constexpr QRgb CloudTop = 0xFF333F69;
constexpr QRgb CloudBottom = 0xFF566496; // as light as texts on it allow

/// 0 to just under 1; the generator's raw numbers are the same on every system.
double fraction(std::minstd_rand& engine)
{
    return static_cast<double>(engine() % 10000) / 10000;
}

void drawStars(QPainter& painter, QSizeF size, double factor, const QRectF& moon)
{
    std::minstd_rand engine(StarSeed);
    const double area = size.width() * size.height() / (factor * factor);
    painter.setPen(Qt::NoPen);
    for (int star = 0; star < area / PixelsPerStar; ++star) {
        const QPointF place(
            fraction(engine) * size.width(), std::pow(fraction(engine), 1.3) * size.height());
        const double brightness = fraction(engine);
        if (moon.contains(place))
            continue; // no star shines through the dark side of the moon
        painter.setBrush(QColor(226, 232, 255, 50 + static_cast<int>(120 * brightness)));
        const double radius = (0.5 + 0.8 * brightness * brightness) * factor;
        painter.drawEllipse(place, radius, radius);
    }
}

void drawMoon(QPainter& painter, QPointF centre, double radius)
{
    QRadialGradient glow(centre, 4 * radius);
    glow.setColorAt(0, QColor(255, 244, 214, 46));
    glow.setColorAt(1, QColor(255, 244, 214, 0));
    painter.setBrush(glow);
    painter.drawEllipse(centre, 4 * radius, 4 * radius);

    QPainterPath disc;
    disc.addEllipse(centre, radius, radius);
    QPainterPath shadow;
    shadow.addEllipse(centre + QPointF(-0.42, -0.22) * radius, radius * 0.94, radius * 0.94);
    painter.setBrush(QColor(0xFFF6E7BE));
    painter.drawPath(disc.subtracted(shadow));
}

/// A bank of cloud, its top out of sight, with puffs along its lower edge and round both its
/// ends; depth: how far down it reaches.
void drawCloud(QPainter& painter, double left, double right, double depth)
{
    QLinearGradient fill(0, 0, 0, depth);
    fill.setColorAt(0, QColor(CloudTop));
    fill.setColorAt(1, QColor(CloudBottom));
    const double radius = depth * 0.32;
    QPainterPath cloud;
    cloud.setFillRule(Qt::WindingFill);
    cloud.addRect(QRectF(left + radius, -radius, right - left - 2 * radius, depth));
    const auto addPuff = [&](double across, double down, double size) {
        cloud.addEllipse(QPointF(across, down), size, size);
    };
    for (const double end : {left + radius, right - radius}) {
        addPuff(end, depth - 1.9 * radius, 1.1 * radius);
        addPuff(end, depth - 3 * radius, 0.8 * radius);
    }
    int puff = 0;
    for (double across = left + radius; across <= right - radius; across += 1.25 * radius)
        addPuff(across, depth - radius, radius * (puff++ % 3 == 1 ? 1.15 : 0.85));
    painter.setBrush(fill);
    painter.drawPath(cloud);
}

/// Waves along the lower edge of an area, and all that lies below it.
void drawHills(QPainter& painter, const QRectF& area, double height, double phase, QRgb colour)
{
    constexpr int Steps = 60;
    constexpr double Below = 4000; // pixels, more than any window has
    QPainterPath path(area.bottomLeft() + QPointF(0, Below));
    for (int step = 0; step <= Steps; ++step) {
        const double across = static_cast<double>(step) / Steps;
        const double wave = 0.62 + 0.26 * std::sin(phase + 7.1 * across)
            + 0.12 * std::sin(2.3 * phase + 17.0 * across);
        path.lineTo(area.left() + across * area.width(), area.bottom() - height * wave);
    }
    path.lineTo(area.bottomRight() + QPointF(0, Below));
    painter.setBrush(QColor(colour));
    painter.drawPath(path);
}

} // namespace

NightSky::NightSky(QWidget* parent)
    : Backdrop(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void NightSky::cover(const QRect& canvas, double cloud)
{
    m_canvas = canvas;
    m_cloud = cloud;
    setGeometry(parentWidget()->rect());
    redraw();
}

void NightSky::draw(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, m_canvas.bottom());
    sky.setColorAt(0, QColor(Top));
    sky.setColorAt(1, QColor(Bottom));
    painter.fillRect(rect(), sky);
    const double radius = 30 * factor();
    const QPointF moon = m_canvas.topRight() + QPointF(-100, 150) * factor();
    drawStars(painter, size(), factor(),
        {moon - QPointF(radius, radius), moon + QPointF(radius, radius)});
    drawMoon(painter, moon, radius);
    painter.save();
    painter.translate(m_canvas.topLeft());
    drawCloud(painter, 8 * factor(), m_cloud, 84 * factor());
    painter.restore();
    const QRectF ground(0, 0, width(), m_canvas.bottom() + 1);
    drawHills(painter, ground, 92 * factor(), 0.4, 0xFF2A3760);
    drawHills(painter, ground, 56 * factor(), 2.6, 0xFF222D50);
}

} // namespace games
