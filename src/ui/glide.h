#pragma once

#include <QHash>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include <chrono>
#include <functional>

namespace ui {

/// Moves controls of a screen smoothly to their new places, in twips, each in a straight line
/// and at an even pace. A style without animations (isOff) turns every glide into a jump.
class Glide : public QObject {
public:
    using Mover = std::function<void(QWidget* control, double left, double top)>;

    /// What a glide takes of the step that it shows: nearly all, so that steps join up into one
    /// motion, but it has ended when the next step comes.
    static constexpr double ShareOfStep = 0.95;

    /// move puts a control to a place at once; what it needs must outlive the glide.
    Glide(Mover move, QObject* parent);

    /// Whether the style of a control turns motion off (SH_Widget_Animation_Duration is 0).
    static bool isOff(const QWidget& control);

    /// Sends a control off, to arrive after nearly the time of a step. One that is on its way
    /// there already just goes on; one that is on its way elsewhere turns where it is.
    void send(QWidget* control, QPointF from, QPointF to, std::chrono::milliseconds step);

    /// Jolts a control, by this much to one side and less to the other. It ends where it was
    /// going, or was.
    void nudge(QWidget* control, QPointF at, QPointF by, std::chrono::milliseconds time);

    /// Puts a control to its place at once.
    void put(QWidget* control, QPointF place);

    bool isMoving() const;

private:
    QVariantAnimation& tripOf(QWidget* control);

    Mover m_move;
    QHash<QWidget*, QPointer<QVariantAnimation>> m_trips; ///< each goes with its control
};

} // namespace ui
