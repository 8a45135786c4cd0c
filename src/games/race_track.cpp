#include "games/race_track.h"

#include "games/car_picture.h"
#include "ui/look.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace games {

namespace {

// Twips.
constexpr double Kerb = 180;
constexpr double KerbStone = 300;
constexpr double Mark = 150; // diameter of a mark on the kerb
constexpr double Line = 44; // width of a painted line
constexpr QRgb KerbRed = 0xFFD0312D;
constexpr QRgb Paint = 0xFFF4F4F0;
constexpr QRgb Black = 0xFF1B1F24;
constexpr QRgb Unlit = 0xFF3A4048;

void drawKerb(QPainter& painter, double top)
{
    for (int stone = 0; stone * KerbStone < RaceTrack::Width; ++stone)
        painter.fillRect(QRectF(stone * KerbStone, top, KerbStone, Kerb),
            QColor(stone % 2 == 0 ? KerbRed : Paint));
}

/// One mark where the car's front comes to stand after each step.
void drawMarks(QPainter& painter, int passed)
{
    constexpr double Step = static_cast<double>(RaceCourse::StartLeft) / Race::StepsToWin;
    painter.setPen(QPen(QColor(Black), 22));
    for (int mark = 1; mark <= Race::StepsToWin; ++mark) {
        const double left = RaceCourse::StartLeft - mark * Step;
        painter.setBrush(QColor(mark <= passed ? ui::look::Gold : Unlit));
        painter.drawEllipse(QPointF(left + Mark, Kerb / 2), Mark / 2, Mark / 2);
    }
    painter.setPen(Qt::NoPen);
}

void drawLaneDivider(QPainter& painter)
{
    constexpr double Dash = 420;
    constexpr double Top = (RaceTrack::Height - Line) / 2;
    for (double left = 1200; left < RaceTrack::StartLine - Dash; left += 2 * Dash)
        painter.fillRect(QRectF(left, Top, Dash, Line), QColor(Paint));
    painter.fillRect(
        QRectF(RaceTrack::StartLine, Top, RaceTrack::Width - RaceTrack::StartLine, Line),
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

/// The name of a lane, painted on the asphalt up to the start line.
void drawName(QPainter& painter, const QString& name, double laneTop)
{
    constexpr double Size = 620;
    constexpr double Lane = RaceTrack::Height / 2;
    QFont font = ui::look::scaled({ui::look::Family::Andika, 40, true}, 1);
    font.setPixelSize(static_cast<int>(Size));
    painter.setFont(font);
    painter.setPen(QColor(Paint));
    painter.drawText(QRectF(RaceTrack::StartLine - 4300, laneTop, 4100, Lane),
        Qt::AlignRight | Qt::AlignVCenter, name);
    painter.setPen(Qt::NoPen);
}

/// Says from afar which lane is the pupil's.
void drawPennant(QPainter& painter, QPointF foot)
{
    constexpr double Pole = 900;
    painter.fillRect(QRectF(foot.x(), foot.y() - Pole, 50, Pole), QColor(Paint));
    painter.setBrush(QColor(ui::look::Gold));
    painter.setPen(QPen(QColor(Black), 20, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF top = foot + QPointF(0, -Pole);
    painter.drawPolygon(QPolygonF{top, top + QPointF(-720, 230), top + QPointF(0, 460)});
    painter.setPen(Qt::NoPen);
}

} // namespace

RaceTrack::RaceTrack(QWidget* parent)
    : Backdrop(parent)
{
}

void RaceTrack::setPassedMarks(int marks)
{
    if (marks == m_passedMarks)
        return;
    m_passedMarks = marks;
    redraw();
}

void RaceTrack::draw(QPainter& painter)
{
    painter.fillRect(rect(), QColor(LaneGrey));
    painter.scale(factor() / ui::TwipsPerPixel, factor() / ui::TwipsPerPixel);
    painter.setPen(Qt::NoPen);
    drawKerb(painter, 0);
    drawKerb(painter, Height - Kerb);
    drawMarks(painter, m_passedMarks);
    drawLaneDivider(painter);
    painter.fillRect(QRectF(StartLine, Kerb, 70, Height - 2 * Kerb), QColor(Paint));
    drawChequers(painter, {FinishLine, Kerb, 236, Height - 2 * Kerb}, 2, 20);
    drawName(painter, u"TÚ"_s, 0);
    drawName(painter, u"RIVAL"_s, Height / 2);
    drawPennant(painter, {StartLine - 1250, Height / 2 - 200});
}

} // namespace games
