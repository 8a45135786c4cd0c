#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

namespace ui {

/// Moves controls of a screen smoothly to their new places, in twips, each in a straight line
/// and in Milliseconds at most. A style without animations (SH_Widget_Animation_Duration is 0)
/// turns every glide into a jump.
class Glide : public QObject {
public:
    using Mover = std::function<void(QWidget* control, double left, double top)>;

    static constexpr int Milliseconds = 150;

    /// move puts a control to a place at once; what it needs must outlive the glide.
    Glide(Mover move, QObject* parent);

    /// Sends a control off. One that is on its way already goes on from where it is.
    void send(QWidget* control, QPointF from, QPointF to);

    /// Puts a control to its place at once.
    void put(QWidget* control, QPointF place);

    bool isMoving() const { return m_frames.isActive(); }

private:
    struct Trip {
        QPointer<QWidget> control;
        QPointF from;
        QPointF to;
        qint64 start; ///< on m_clock, in milliseconds
    };

    void cancel(QWidget* control);
    void advance();

    Mover m_move;
    QTimer m_frames;
    QElapsedTimer m_clock;
    std::vector<Trip> m_trips;
};

} // namespace ui
