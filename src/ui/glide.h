#pragma once

#include <QHash>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include <functional>

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

    bool isMoving() const;

private:
    QVariantAnimation& tripOf(QWidget* control);

    Mover m_move;
    QHash<QWidget*, QPointer<QVariantAnimation>> m_trips; ///< each goes with its control
};

} // namespace ui
