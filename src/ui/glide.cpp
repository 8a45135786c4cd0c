#include "ui/glide.h"

#include <QStyle>

#include <algorithm>

namespace ui {

namespace {

constexpr int FrameMilliseconds = 16;

} // namespace

Glide::Glide(Mover move, QObject* parent)
    : QObject(parent)
    , m_move(std::move(move))
    , m_frames(this) // as a child it stops with the other timers of a screen that is closed
{
    m_clock.start();
    m_frames.setTimerType(Qt::PreciseTimer);
    m_frames.setInterval(FrameMilliseconds);
    connect(&m_frames, &QTimer::timeout, this, &Glide::advance);
}

void Glide::send(QWidget* control, QPointF from, QPointF to)
{
    const QStyle* style = control->style();
    if (from == to
        || style->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, control) == 0) {
        put(control, to);
        return;
    }
    cancel(control);
    m_trips.push_back({control, from, to, m_clock.elapsed()});
    if (!m_frames.isActive())
        m_frames.start();
}

void Glide::put(QWidget* control, QPointF place)
{
    cancel(control);
    m_move(control, place.x(), place.y());
}

void Glide::cancel(QWidget* control)
{
    std::erase_if(m_trips, [control](const Trip& trip) { return trip.control == control; });
}

void Glide::advance()
{
    const qint64 now = m_clock.elapsed();
    for (const Trip& trip : m_trips) {
        if (!trip.control)
            continue;
        const double done = std::min(1.0, static_cast<double>(now - trip.start) / Milliseconds);
        const QPointF place = trip.from + (trip.to - trip.from) * done;
        m_move(trip.control, place.x(), place.y());
    }
    std::erase_if(m_trips,
        [now](const Trip& trip) { return !trip.control || now - trip.start >= Milliseconds; });
    if (m_trips.empty())
        m_frames.stop();
}

} // namespace ui
