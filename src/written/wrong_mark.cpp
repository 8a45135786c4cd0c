#include "written/wrong_mark.h"

#include "ui/look.h"

#include <QPainter>

namespace written {

WrongMark::WrongMark(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void WrongMark::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(QPen(QColor(ui::look::Wrong), width() / 6.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(rect().topLeft(), rect().bottomRight());
    painter.drawLine(rect().topRight(), rect().bottomLeft());
}

} // namespace written
