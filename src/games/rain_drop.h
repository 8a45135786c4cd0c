#pragma once

#include "ui/button.h"
#include "ui/scaling.h"

#include <QPixmap>

namespace games {

/// A falling number: a drop of one colour. The mouse hits it when it is pressed, not when it
/// is released: the drop has fallen on by then.
class RainDrop : public ui::Button, public ui::Scalable {
public:
    explicit RainDrop(QWidget* parent);

    /// The size in twips.
    static constexpr double Width = 660;
    static constexpr double Height = 780;

    /// Size of the number in pixels at factor 1: long ones get smaller digits.
    static int digitPixels(const QString& number);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    struct Looks {
        QSize size;
        QRgb fill = 0;
        QString text;
        bool hover = false;
        bool down = false;
        bool operator==(const Looks&) const = default;
    };

    Looks looks() const;
    void draw();

    Looks m_drawn; ///< what m_picture shows
    QPixmap m_picture; ///< drawn once, shown in every frame of the fall
};

} // namespace games
