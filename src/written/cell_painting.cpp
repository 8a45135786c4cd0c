#include "written/cell_painting.h"

#include "ui/look.h"
#include "ui/marks.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace written {

namespace {

/// In the middle of its cell, at the height at which a digit stands in the middle.
void paintCharacter(QPainter& painter, const QRect& cell, QChar character)
{
    if (character == u' ')
        return;
    const QFontMetricsF metrics(painter.font());
    const double free = cell.width() - metrics.horizontalAdvance(character);
    const double digit = metrics.tightBoundingRect(u"0"_s).height();
    painter.drawText(
        QPoint(cell.left() + qRound(free / 2), cell.top() + qRound((cell.height() + digit) / 2)),
        character);
}

} // namespace

void paintCell(
    QPainter& painter, const QRect& cell, QChar character, const CellMarks& marks, double factor)
{
    const bool lit = marks.selected && marks.hasFocus;
    if (lit)
        painter.fillRect(cell, QColor(ui::look::Focus));
    else if (marks.next && marks.hasFocus)
        ui::drawHere(painter, cell, factor);
    else if (marks.selected || marks.composed)
        painter.fillRect(cell, QColor(ui::look::Marker));
    painter.setPen(QColor(lit ? ui::look::Card : ui::look::Ink));
    paintCharacter(painter, cell, character);
}

void paintBar(QPainter& painter, QRect cell, double factor)
{
    cell.setWidth(std::max(2, qRound(ui::look::thick(ui::look::CaretWidth) * factor)));
    painter.fillRect(cell, QColor(ui::look::Focus));
}

} // namespace written
