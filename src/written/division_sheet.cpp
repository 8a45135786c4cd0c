#include "written/division_sheet.h"

#include <QMouseEvent>

namespace written {

DivisionSheet::DivisionSheet(QWidget* parent)
    : SquaredPaper(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents, false);
    setCursor(Qt::IBeamCursor);
}

void DivisionSheet::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit pressed(event->position().toPoint());
}

} // namespace written
