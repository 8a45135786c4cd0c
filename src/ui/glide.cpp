#include "ui/glide.h"

#include <QStyle>

#include <algorithm>

namespace ui {

namespace {

/// The time from frame to frame, at least, in milliseconds: in a window of very many pixels
/// every second frame flows as well and costs half as much.
int leastFrame(const QWidget& control)
{
    constexpr double VeryMany = 3e6;
    const QSizeF size = QSizeF(control.window()->size()) * control.devicePixelRatioF();
    return size.width() * size.height() < VeryMany ? 0 : 25;
}

} // namespace

Glide::Glide(Mover move, QObject* parent)
    : QObject(parent)
    , m_move(std::move(move))
{
}

bool Glide::isOff(const QWidget& control)
{
    return control.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &control)
        == 0;
}

void Glide::send(QWidget* control, QPointF from, QPointF to, std::chrono::milliseconds step)
{
    QVariantAnimation& trip = tripOf(control);
    const bool moving = trip.state() == QVariantAnimation::Running;
    if (moving && trip.endValue().toPointF() == to)
        return;
    if (from == to || isOff(*control)) {
        put(control, to);
        return;
    }
    trip.stop();
    trip.setKeyValues({{0, from}, {1, to}});
    trip.setDuration(static_cast<int>(ShareOfStep * static_cast<double>(step.count())));
    trip.start();
}

void Glide::nudge(QWidget* control, QPointF at, QPointF by, std::chrono::milliseconds time)
{
    if (isOff(*control))
        return;
    QVariantAnimation& trip = tripOf(control);
    const bool moving = trip.state() == QVariantAnimation::Running;
    const QPointF end = moving ? trip.endValue().toPointF() : at;
    trip.stop();
    trip.setKeyValues({{0, at}, {0.25, end + by}, {0.6, end - by / 2}, {1, end}});
    trip.setDuration(static_cast<int>(time.count()));
    trip.start();
}

void Glide::put(QWidget* control, QPointF place)
{
    if (QVariantAnimation* trip = m_trips.value(control))
        trip->stop();
    m_move(control, place.x(), place.y());
}

bool Glide::isMoving() const
{
    return std::ranges::any_of(m_trips,
        [](const auto& trip) { return trip && trip->state() == QVariantAnimation::Running; });
}

QVariantAnimation& Glide::tripOf(QWidget* control)
{
    QPointer<QVariantAnimation>& trip = m_trips[control];
    if (!trip) {
        trip = new QVariantAnimation(control);
        connect(trip, &QVariantAnimation::valueChanged, this,
            [this, control, made = trip.data(), last = 0](const QVariant& place) mutable {
                const int now = made->currentTime();
                if (made->state() != QVariantAnimation::Running
                    || (now > last && now < made->duration()
                        && now - last < leastFrame(*control)))
                    return;
                last = now;
                m_move(control, place.toPointF().x(), place.toPointF().y());
            });
    }
    return *trip;
}

} // namespace ui
