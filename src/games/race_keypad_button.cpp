#include "games/race_keypad_button.h"

#include "ui/look.h"
#include "ui/marks.h"

#include <QPainter>

namespace games {

RaceKeypadButton::RaceKeypadButton(Drawing drawing, const QString& name, QWidget* parent)
    : Button({}, ui::look::palette().color(QPalette::Button), parent)
    , m_drawing(drawing)
{
    setAccessibleName(name);
    setToolTip(name);
}

void RaceKeypadButton::paintEvent(QPaintEvent* event)
{
    Button::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center() + QPointF(0, isDown() ? 1 : 0));
    painter.scale(factor(), factor());
    const QColor ink(ui::look::Ink);
    if (m_drawing == Drawing::Cross) {
        painter.setPen(QPen(ink, 2.2, Qt::SolidLine, Qt::RoundCap));
        ui::drawCross(painter, {QPointF(-4, -4), QPointF(4, 4)});
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    for (int row = -1; row <= 2; ++row) {
        for (int column = -1; column <= 1; ++column)
            painter.drawRoundedRect(QRectF(column * 8 - 2.5, row * 7 - 6, 5, 4.5), 1.2, 1.2);
    }
}

} // namespace games
