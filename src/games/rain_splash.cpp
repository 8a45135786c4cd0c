#include "games/rain_splash.h"

#include "ui/glide.h"
#include "ui/look.h"
#include "ui/scaling.h"

#include <QPainter>
#include <QVariantAnimation>

#include <cmath>
#include <numbers>
#include <utility>

namespace games {

namespace {

constexpr int Milliseconds = 700;
constexpr int Size = 120; // pixels at factor 1, as all measures here
constexpr int Drops = 9;
constexpr double DropRadius = 5;
constexpr double Reach = 50; // how far drops fly
constexpr double Rise = 26; // of the points of a hit
constexpr double Shake = 9; // of the points of a miss, to each side
constexpr double Shakes = 4;
constexpr ui::look::Font PointsFont{ui::look::Family::Andika, 22, true};

} // namespace

RainSplash::RainSplash(QWidget& canvas, Kind kind, const QColor& colour, QString text)
    : QWidget(&canvas)
    , m_kind(kind)
    , m_colour(colour)
    , m_text(std::move(text))
    , m_factor(ui::factorOf(&canvas))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void RainSplash::show(
    QWidget& canvas, Kind kind, QPoint centre, const QColor& colour, const QString& text)
{
    if (ui::Glide::isOff(canvas))
        return;
    auto* splash = new RainSplash(canvas, kind, colour, text);
    const int size = qRound(Size * splash->m_factor);
    splash->setGeometry(centre.x() - size / 2, centre.y() - size / 2, size, size);
    auto* time = new QVariantAnimation(splash);
    time->setStartValue(0.0);
    time->setEndValue(1.0);
    time->setDuration(Milliseconds);
    connect(time, &QVariantAnimation::valueChanged, splash, [splash](const QVariant& progress) {
        splash->m_progress = progress.toDouble();
        splash->update();
    });
    connect(time, &QVariantAnimation::finished, splash, &QObject::deleteLater);
    splash->setVisible(true);
    time->start();
}

void RainSplash::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.scale(m_factor, m_factor);
    painter.setOpacity(1 - m_progress * m_progress);
    if (m_kind != Kind::Miss)
        drawDrops(painter);
    if (!m_text.isEmpty())
        drawPoints(painter);
}

/// All around from a hit, upwards from the ground.
void RainSplash::drawDrops(QPainter& painter) const
{
    using std::numbers::pi;
    const double way = Reach * std::sqrt(m_progress);
    painter.setPen(QPen(QColor(0xFFF4F6FF), 1));
    painter.setBrush(m_colour);
    for (int drop = 0; drop < Drops; ++drop) {
        const double share =
            static_cast<double>(drop) / (m_kind == Kind::Hit ? Drops : Drops - 1);
        const double angle = m_kind == Kind::Hit ? 2 * pi * share : -pi * (0.1 + 0.8 * share);
        const double radius = DropRadius * (1 - 0.6 * m_progress);
        painter.drawEllipse(
            QPointF(way * std::cos(angle), way * std::sin(angle)), radius, radius);
    }
}

void RainSplash::drawPoints(QPainter& painter) const
{
    const bool won = m_kind == Kind::Hit;
    const double aside =
        won ? 0 : Shake * (1 - m_progress) * std::sin(2 * std::numbers::pi * Shakes * m_progress);
    const double up = m_kind == Kind::Miss ? 0 : Rise * m_progress;
    painter.setFont(ui::look::scaled(PointsFont, 1));
    const double width = QFontMetricsF(painter.font()).horizontalAdvance(m_text) + 16;
    const QRectF label(aside - width / 2, -15 - up, width, 30);
    const QColor fill(won ? ui::look::Gold : ui::look::Wrong);
    painter.setPen(QPen(QColor(ui::look::Card), 1.5));
    painter.setBrush(fill);
    painter.drawRoundedRect(label, 15, 15);
    painter.setPen(ui::look::inkOn(fill));
    painter.drawText(label, Qt::AlignCenter, m_text);
}

} // namespace games
