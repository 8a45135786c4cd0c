#include "ui/glide.h"

#include <QStyle>

#include <algorithm>

namespace ui {

Glide::Glide(Mover move, QObject* parent)
    : QObject(parent)
    , m_move(std::move(move))
{
}

void Glide::send(QWidget* control, QPointF from, QPointF to)
{
    const QStyle* style = control->style();
    if (from == to
        || style->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, control) == 0) {
        put(control, to);
        return;
    }
    QVariantAnimation& trip = tripOf(control);
    trip.stop();
    trip.setStartValue(from);
    trip.setEndValue(to);
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
        trip->setDuration(Milliseconds);
        connect(trip, &QVariantAnimation::valueChanged, this,
            [this, control, made = trip.data()](const QVariant& place) {
                if (made->state() == QVariantAnimation::Running)
                    m_move(control, place.toPointF().x(), place.toPointF().y());
            });
    }
    return *trip;
}

} // namespace ui
