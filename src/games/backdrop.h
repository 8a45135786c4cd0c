#pragma once

#include "ui/scaling.h"

#include <QPixmap>
#include <QWidget>

namespace games {

/// A picture behind what moves. It is drawn once a size, not in every frame of a motion.
class Backdrop : public QWidget, public ui::Scalable {
public:
    explicit Backdrop(QWidget* parent);

protected:
    /// Draws the whole picture, every pixel of it; the painter's pixels are those of the widget.
    virtual void draw(QPainter& painter) = 0;

    /// Has the picture drawn anew.
    void redraw();

    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
};

} // namespace games
