#pragma once

#include "ui/underlay.h"

class QPainterPath;

namespace ui {

/// A slate tray behind action buttons, so that their colours neither shout on paper nor glow.
/// It follows the buttons wherever they go, and is there while one of them is.
class Tray : public Underlay {
    Q_OBJECT

public:
    /// Between the buttons and the edge of the tray, in pixels at factor 1: for layouts.
    static constexpr int Margin = 12;

    enum class Shape {
        Plate, ///< round its buttons
        Strip ///< along the bottom of the canvas, from edge to edge: under those of a dialog
    };

    /// Lies behind buttons that stand on the same canvas.
    explicit Tray(const std::vector<QWidget*>& buttons, Shape shape = Shape::Plate);

    /// Whether a control stands on a tray.
    static bool holds(const QWidget& control);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect placeOf(const QWidget& control) const override;
    QRect around(const QRect& covered) const override;
    QPainterPath outline() const;

    Shape m_shape;
};

} // namespace ui
