#include "games/rain_halo.h"

#include "ui/look.h"
#include "ui/scaling.h"

#include <QPainter>

namespace games {

namespace {

// Pixels at factor 1.
constexpr double Room = 11; // beyond the number
constexpr double Glow = 10; // width of the soft edge

} // namespace

RainHalo::RainHalo(QWidget* canvas)
    : QWidget(canvas)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void RainHalo::surround(QWidget& number)
{
    const int room = qRound(Room * ui::factorOf(this));
    setGeometry(number.geometry().adjusted(-room, -room, room, room));
    if (isVisible())
        return;
    stackUnder(&number);
    show();
}

void RainHalo::paintEvent(QPaintEvent*)
{
    const double factor = ui::factorOf(this);
    QColor light = palette().color(QPalette::Highlight);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(light, ui::look::thick(ui::look::RingWidth) * factor));
    const double inset = Glow / 2 * factor;
    const QRectF ring = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    light.setAlpha(70);
    painter.setBrush(light);
    painter.drawEllipse(ring);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(light, Glow * factor));
    painter.drawEllipse(ring);
}

} // namespace games
