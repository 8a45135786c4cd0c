#include "games/race_track.h"

#include "games/car_picture.h"

#include <QPainter>

#include <array>
#include <utility>

namespace games {

namespace {

constexpr double Kerb = 120;
constexpr double KerbStone = 300;
constexpr QRgb KerbRed = 0xFFD0312D;
constexpr QRgb Paint = 0xFFF4F4F0;
constexpr QRgb Black = 0xFF1B1F24;
constexpr QRgb Grass = 0xFF86B46B;
constexpr QRgb MownGrass = 0xFF92BF77;
constexpr QRgb Shade = 0xFF5E8A47;

/// Lets a painter draw in twips.
void useTwips(QPainter& painter, double factor)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = factor / ui::TwipsPerPixel;
    painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
}

void drawKerb(QPainter& painter, double top)
{
    for (int stone = 0; stone * KerbStone < RaceTrack::Width; ++stone)
        painter.fillRect(QRectF(stone * KerbStone, top, KerbStone, Kerb),
            QColor(stone % 2 == 0 ? KerbRed : Paint));
}

void drawLaneDivider(QPainter& painter)
{
    constexpr double Dash = 420;
    for (double left = 1200; left < RaceTrack::StartLine - Dash; left += 2 * Dash)
        painter.fillRect(QRectF(left, RaceTrack::Height / 2 - 22, Dash, 44), QColor(Paint));
    painter.fillRect(QRectF(RaceTrack::StartLine, RaceTrack::Height / 2 - 22,
                         RaceTrack::Width - RaceTrack::StartLine, 44),
        QColor(Paint));
}

void drawChequers(QPainter& painter, const QRectF& area, int columns, int rows)
{
    const double width = area.width() / columns;
    const double height = area.height() / rows;
    painter.fillRect(area, QColor(Paint));
    for (int row = 0; row < rows; ++row) {
        for (int column = row % 2; column < columns; column += 2)
            painter.fillRect(
                QRectF(area.left() + column * width, area.top() + row * height, width, height),
                QColor(Black));
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
        const double y = top + 30 + Wave.at(static_cast<std::size_t>(column));
        for (int row = 0; row < 5; ++row)
            painter.fillRect(QRectF(x, y + row * Square, Square + 2, Square + 2),
                QColor((row + column) % 2 == 0 ? Black : Paint));
    }
}

void drawLight(QPainter& painter, double centre, bool running)
{
    painter.setBrush(QColor(Black));
    painter.drawRect(QRectF(centre - 25, 300, 50, RaceVerge::Above - 300));
    painter.drawRoundedRect(QRectF(centre - 130, 40, 260, 470), 70, 70);
    painter.setBrush(QColor(running ? 0xFF4A2A2A : 0xFFFF4B3E));
    painter.drawEllipse(QPointF(centre, 160), 82, 82);
    painter.setBrush(QColor(running ? 0xFF46E36B : 0xFF233A2A));
    painter.drawEllipse(QPointF(centre, 390), 82, 82);
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

RaceTrack::RaceTrack(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void RaceTrack::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(LaneGrey));
    useTwips(painter, factor());
    drawKerb(painter, 0);
    drawKerb(painter, Height - Kerb);
    drawLaneDivider(painter);
    painter.fillRect(QRectF(StartLine, Kerb, 70, Height - 2 * Kerb), QColor(Paint));
    drawChequers(painter, {FinishLine, Kerb, 236, Height - 2 * Kerb}, 2, 20);
}

RaceVerge::RaceVerge(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void RaceVerge::setRunning(bool running)
{
    m_running = running;
    update();
}

void RaceVerge::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(Grass));
    useTwips(painter, factor());
    for (double left = 0; left < RaceTrack::Width; left += 1200)
        painter.fillRect(
            QRectF(left, 0, 600, Above + RaceTrack::Height + Below), QColor(MownGrass));
    for (const auto& [centre, size] : {std::pair(2350.0, 420.0), std::pair(4300.0, 300.0),
             std::pair(5150.0, 460.0), std::pair(7500.0, 360.0), std::pair(10800.0, 440.0)})
        drawBush(painter, centre, size);
    drawFlag(painter, RaceTrack::FinishLine + 96, 60);
    drawLight(painter, RaceTrack::StartLine + 35, m_running);
}

} // namespace games
