#include "written/wrong_mark.h"

#include "ui/marks.h"

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
    ui::drawWrongDisc(painter, rect());
}

} // namespace written
