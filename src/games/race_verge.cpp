#include "games/race_verge.h"

#include "core/defect.h"
#include "games/race_track.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>
#include <utility>

namespace games {

namespace {

constexpr double Horizon = 720; // where the grass begins, twips below the top of the sky
constexpr QRgb Paint = 0xFFF4F4F0;
constexpr QRgb Black = 0xFF1B1F24;
constexpr QRgb SkyTop = 0xFF9CCBEF;
constexpr QRgb SkyBottom = 0xFFDDEFFB;
constexpr QRgb FarHills = 0xFF9FC3A8;
constexpr QRgb NearHills = 0xFF7FAE84;
constexpr QRgb Grass = 0xFF86B46B;
constexpr QRgb MownGrass = 0xFF92BF77;
constexpr QRgb Shade = 0xFF5E8A47;

void drawSky(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, Horizon);
    sky.setColorAt(0, QColor(SkyTop));
    sky.setColorAt(1, QColor(SkyBottom));
    painter.fillRect(QRectF(0, 0, RaceTrack::Width, Horizon), sky);
    painter.setBrush(QColor(0xFFFFE08A));
    painter.drawEllipse(QPointF(6200, 250), 150, 150);
    painter.setBrush(QColor(255, 255, 255, 225));
    for (const double left : {2600.0, 8000.0}) {
        painter.drawEllipse(QPointF(left, 260), 320, 90);
        painter.drawEllipse(QPointF(left - 90, 190), 150, 110);
        painter.drawEllipse(QPointF(left + 120, 210), 120, 80);
    }
}

void drawHills(QPainter& painter, double height, double phase, QRgb colour)
{
    constexpr double Step = 150;
    QPainterPath path(QPointF(0, Horizon));
    for (double across = 0; across <= RaceTrack::Width; across += Step) {
        const double wave =
            0.6 + 0.28 * std::sin(phase + across / 1300) + 0.12 * std::sin(phase + across / 480);
        path.lineTo(across, Horizon - height * wave);
    }
    path.lineTo(RaceTrack::Width, Horizon);
    painter.setBrush(QColor(colour));
    painter.drawPath(path);
}

void drawGrass(QPainter& painter)
{
    constexpr double Bottom = RaceVerge::Above + RaceTrack::Height + RaceVerge::Below;
    constexpr double Swath = 600;
    for (double left = 0; left < RaceTrack::Width; left += 2 * Swath) {
        painter.fillRect(QRectF(left, Horizon, Swath, Bottom - Horizon), QColor(MownGrass));
        painter.fillRect(QRectF(left + Swath, Horizon, Swath, Bottom - Horizon), QColor(Grass));
    }
}

/// A flag in the wind: every column of its chequers hangs a little lower or higher.
void drawFlag(QPainter& painter, double left, double top)
{
    constexpr int Columns = 8;
    constexpr double Square = 68;
    constexpr std::array<double, Columns> Wave{0, 14, 24, 20, 6, -6, -8, 2};
    painter.setBrush(QColor(Black));
    painter.drawRoundedRect(QRectF(left, top, 45, RaceVerge::Above - top), 20, 20);
    for (int column = 0; column < Columns; ++column) {
        const double x = left + 45 + column * Square;
        const double y = top + 30 + core::at(Wave, column);
        for (int row = 0; row < 5; ++row)
            painter.fillRect(QRectF(x, y + row * Square, Square + 2, Square + 2),
                QColor((row + column) % 2 == 0 ? Black : Paint));
    }
}

void drawLight(QPainter& painter, double centre, bool running)
{
    constexpr double Top = RaceVerge::Above - 840;
    painter.setBrush(QColor(Black));
    painter.drawRect(QRectF(centre - 25, Top + 260, 50, RaceVerge::Above - Top - 260));
    painter.drawRoundedRect(QRectF(centre - 150, Top, 300, 560), 80, 80);
    painter.setBrush(QColor(running ? 0xFF4A2A2A : 0xFFFF4B3E));
    painter.drawEllipse(QPointF(centre, Top + 145), 100, 100);
    painter.setBrush(QColor(running ? 0xFF46E36B : 0xFF233A2A));
    painter.drawEllipse(QPointF(centre, Top + 415), 100, 100);
}

void drawBush(QPainter& painter, double centre, double size)
{
    const double ground = RaceVerge::Above - 20;
    painter.setBrush(QColor(Shade));
    for (const auto& [shift, radius] :
        {std::pair(-0.55, 0.34), std::pair(0.0, 0.5), std::pair(0.55, 0.38)})
        painter.drawEllipse(QPointF(centre + shift * size, ground - radius * size * 0.6),
            radius * size, radius * size * 0.8);
}

} // namespace

RaceVerge::RaceVerge(QWidget* parent)
    : Backdrop(parent)
{
}

void RaceVerge::setRunning(bool running)
{
    if (running == m_running)
        return;
    m_running = running;
    redraw();
}

void RaceVerge::draw(QPainter& painter)
{
    painter.fillRect(rect(), QColor(Grass)); // to the last part of a pixel
    painter.scale(factor() / ui::TwipsPerPixel, factor() / ui::TwipsPerPixel);
    painter.setPen(Qt::NoPen);
    drawSky(painter);
    drawHills(painter, 420, 0.6, FarHills);
    drawHills(painter, 250, 2.9, NearHills);
    drawGrass(painter);
    for (const auto& [centre, size] : {std::pair(2350.0, 420.0), std::pair(4300.0, 300.0),
             std::pair(5150.0, 460.0), std::pair(7500.0, 360.0), std::pair(10800.0, 440.0)})
        drawBush(painter, centre, size);
    drawFlag(painter, RaceTrack::FinishLine + 96, Above - 660);
    drawLight(painter, RaceTrack::StartLine + 35, m_running);
}

} // namespace games
