#include "games/night_sky.h"

#include <QPainter>
#include <QPainterPath>
#include <QPaintEvent>

#include <cmath>
#include <random>

namespace games {

namespace {

constexpr int PixelsPerStar = 3600; // at factor 1
constexpr unsigned StarSeed = 7; // the same sky every night

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

void drawHills(QPainter& painter, QSizeF size, double height, double phase, QRgb colour)
{
    QPainterPath path(QPointF(0, size.height()));
    constexpr int Steps = 60;
    for (int step = 0; step <= Steps; ++step) {
        const double across = static_cast<double>(step) / Steps;
        const double wave = 0.62 + 0.26 * std::sin(phase + 7.1 * across)
            + 0.12 * std::sin(2.3 * phase + 17.0 * across);
        path.lineTo(across * size.width(), size.height() - height * wave);
    }
    path.lineTo(size.width(), size.height());
    painter.setBrush(QColor(colour));
    painter.drawPath(path);
}

void drawNight(QPainter& painter, QSizeF size, double factor)
{
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(NightSky::Top));
    sky.setColorAt(1, QColor(NightSky::Bottom));
    painter.fillRect(QRectF(QPointF(0, 0), size), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = 30 * factor;
    const QPointF moon(size.width() - 82 * factor, 124 * factor);
    drawStars(
        painter, size, factor, {moon - QPointF(radius, radius), moon + QPointF(radius, radius)});
    drawMoon(painter, moon, radius);
    drawHills(painter, size, 92 * factor, 0.4, 0xFF2A3760);
    drawHills(painter, size, 56 * factor, 2.6, 0xFF222D50);
}

} // namespace

NightSky::NightSky(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void NightSky::paintEvent(QPaintEvent* event)
{
    const QSize pixels = size() * devicePixelRatioF();
    if (m_picture.size() != pixels) {
        m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&m_picture);
        drawNight(painter, size(), factor());
    }
    const QRectF area = event->rect();
    const double ratio = devicePixelRatioF();
    QPainter(this).drawPixmap(
        area, m_picture, QRectF(area.topLeft() * ratio, area.size() * ratio));
}

} // namespace games
