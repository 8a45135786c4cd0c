#pragma once

#include "ui/mascot.h"

#include <QWidget>

#include <optional>

namespace ui {

/// The slate ground of a window: what shows beside its canvas where the window is wider or
/// higher. The mascot may stand on it, at the right, where there is room.
class Ground : public QWidget {
    Q_OBJECT

public:
    /// Lies under a canvas and gives it a surface of its own.
    explicit Ground(QWidget& canvas);

    /// Lets the mascot stand in the margin of the window in which a control is, in a pose.
    static void pose(const QWidget& control, Pose pose);

    /// Where the mascot stands, in pixels on the window; empty where there is no room.
    QRectF mascotPlace() const;
    std::optional<Pose> mascot() const { return m_pose; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget& m_canvas;
    std::optional<Pose> m_pose;
};

} // namespace ui
