#include "games/race_podium.h"

#include "core/defect.h"
#include "ui/look.h"
#include "ui/scaling.h"

#include <QPainter>

#include <array>
#include <random>

namespace games {

namespace {

constexpr int Scraps = 160;
constexpr unsigned ScrapSeed = 15; // the same confetti at every win
constexpr std::array<QRgb, 5> ScrapColours{
    0xFFF5B301, 0xFFD0312D, 0xFF1557C0, 0xFF1B7F3B, 0xFF8E3FB0};

// The podium, in pixels at factor 1: seen below a box in the middle of the canvas.
constexpr double BlockWidth = 118;
constexpr double Tallest = 158;
constexpr double StepDown = 34;

void drawConfetti(QPainter& painter, QSizeF size, double factor)
{
    std::minstd_rand engine(ScrapSeed);
    const auto upTo = [&engine](double limit) {
        return limit * static_cast<double>(engine() % 1000) / 1000;
    };
    painter.setPen(Qt::NoPen);
    for (int scrap = 0; scrap < Scraps; ++scrap) {
        painter.save();
        const double x = upTo(size.width());
        painter.translate(x, upTo(size.height()));
        painter.rotate(upTo(180));
        painter.setBrush(QColor(ScrapColours[engine() % ScrapColours.size()]));
        painter.drawRect(QRectF(-5 * factor, -3 * factor, 10 * factor, 6 * factor));
        painter.restore();
    }
}

void drawBlock(QPainter& painter, const QRectF& block, int place, double factor)
{
    painter.setPen(QPen(QColor(ui::look::Ink), ui::look::thick(ui::look::EdgeWidth) * factor));
    painter.setBrush(QColor(place == 1 ? ui::look::Gold : 0xFFD9DEE3));
    painter.drawRoundedRect(block, 4 * factor, 4 * factor);
    painter.setFont(ui::look::scaled({ui::look::Family::Andika, 44, true}, factor));
    painter.setPen(QColor(ui::look::Ink));
    painter.drawText(block.adjusted(0, 4 * factor, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
        QString::number(place));
}

void drawPodium(QPainter& painter, QSizeF size, double factor)
{
    constexpr std::array<int, 3> Places{2, 1, 3}; // from left to right
    for (int i = 0; i < 3; ++i) {
        const int place = core::at(Places, i);
        const double height = (Tallest - (place - 1) * StepDown) * factor;
        const double width = BlockWidth * factor;
        drawBlock(painter,
            {size.width() / 2 + (i - 1.5) * width, size.height() - height, width, height}, place,
            factor);
    }
}

} // namespace

RacePodium::RacePodium(QWidget* canvas)
    : QWidget(canvas)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void RacePodium::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double factor = ui::factorOf(this);
    drawConfetti(painter, size(), factor);
    drawPodium(painter, size(), factor);
}

} // namespace games
