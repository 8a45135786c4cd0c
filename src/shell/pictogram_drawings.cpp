#include "shell/pictogram_drawings.h"

#include "shell/pictograms.h"

#include <QPainter>
#include <QPainterPath>

namespace shell {

namespace {

void useAccent(QPainter& painter, const PictogramColours& colours)
{
    QPen pen = painter.pen();
    pen.setColor(colours.accent);
    painter.setPen(pen);
}

void drawDot(QPainter& painter, QPointF centre, qreal radius)
{
    painter.save();
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(centre, radius, radius);
    painter.restore();
}

void drawPlus(QPainter& painter, QPointF centre, qreal arm)
{
    painter.drawLine(centre - QPointF(arm, 0), centre + QPointF(arm, 0));
    painter.drawLine(centre - QPointF(0, arm), centre + QPointF(0, arm));
}

void drawTimes(QPainter& painter, QPointF centre, qreal arm)
{
    painter.drawLine(centre - QPointF(arm, arm), centre + QPointF(arm, arm));
    painter.drawLine(centre - QPointF(arm, -arm), centre + QPointF(arm, -arm));
}

// Digits are strokes too, 6 wide and 10 high, so that they weigh as much as the lines
// beside them whatever fonts the desktop has.
void drawTwo(QPainter& painter, QPointF topLeft)
{
    QPainterPath path(QPointF(0, 3));
    path.cubicTo(0, -1, 6, -1, 6, 3);
    path.cubicTo(6, 5.5, 3, 7, 0, 10);
    path.lineTo(6, 10);
    painter.drawPath(path.translated(topLeft));
}

void drawFour(QPainter& painter, QPointF topLeft)
{
    QPainterPath path(QPointF(4, 10));
    path.lineTo(4, 0);
    path.lineTo(0, 7);
    path.lineTo(6, 7);
    painter.drawPath(path.translated(topLeft));
}

void drawRepeatedSum(QPainter& painter, const PictogramColours& colours)
{
    drawFour(painter, {3, 4});
    drawFour(painter, {23, 4});
    drawFour(painter, {23, 18});
    useAccent(painter, colours);
    drawPlus(painter, {16, 9}, 3);
    drawPlus(painter, {16, 23}, 3);
}

void drawTables(QPainter& painter, const PictogramColours& colours)
{
    painter.drawRoundedRect(QRectF(2, 2, 28, 28), 2, 2);
    for (const qreal at : {14, 22}) {
        painter.drawLine(QPointF(at, 2), QPointF(at, 30));
        painter.drawLine(QPointF(2, at), QPointF(30, at));
    }
    useAccent(painter, colours);
    drawTimes(painter, {8, 8}, 2.5);
}

void drawQuickTables(QPainter& painter, const PictogramColours& colours)
{
    painter.drawEllipse(QPointF(16, 18), 11, 11);
    painter.drawLine(QPointF(16, 3), QPointF(16, 7));
    painter.drawLine(QPointF(13, 3), QPointF(19, 3));
    painter.drawLine(QPointF(25, 7), QPointF(27, 9));
    useAccent(painter, colours);
    painter.drawLine(QPointF(16, 18), QPointF(20, 13));
    drawDot(painter, {16, 18}, 2);
}

void drawGap(QPainter& painter, const PictogramColours& colours)
{
    drawTimes(painter, {4.5, 16}, 2.5);
    painter.drawLine(QPointF(27, 14), QPointF(30, 14));
    painter.drawLine(QPointF(27, 18), QPointF(30, 18));
    useAccent(painter, colours);

    // Pen dashes are counted in stroke widths. Two periods fill the width and three the
    // height, so that each corner is the middle of a dash.
    constexpr qreal Period = 6;
    constexpr qreal Dash = 1.4;
    QPen pen = painter.pen();
    pen.setDashPattern({Dash / PictogramStroke, (Period - Dash) / PictogramStroke});
    pen.setDashOffset(Dash / 2 / PictogramStroke);
    painter.setPen(pen);
    painter.drawRect(QRectF(11, 7, 2 * Period, 3 * Period));
}

void drawMultiples(QPainter& painter, const PictogramColours& colours)
{
    for (const qreal top : {3, 18})
        painter.drawRoundedRect(QRectF(2, top, 28, 11), 5.5, 5.5);
    useAccent(painter, colours);
    for (const qreal top : {3, 18}) {
        for (const qreal x : {8, 16, 24})
            drawDot(painter, {x, top + 5.5}, 2);
    }
}

void drawMultiplication(QPainter& painter, const PictogramColours& colours)
{
    drawTwo(painter, {14, 2});
    drawFour(painter, {23, 2});
    drawTwo(painter, {23, 15});
    painter.drawLine(QPointF(3, 29), QPointF(29, 29));
    useAccent(painter, colours);
    drawTimes(painter, {7, 20}, 3);
}

void drawDivision(QPainter& painter, const PictogramColours& colours)
{
    drawFour(painter, {3, 4});
    drawTwo(painter, {19, 4});
    drawTwo(painter, {19, 20});
    useAccent(painter, colours);
    painter.drawPolyline(QPolygonF{{15, 3}, {15, 17}, {29, 17}});
}

void drawProblems(QPainter& painter, const PictogramColours& colours)
{
    QPainterPath bubble;
    bubble.addRoundedRect(QRectF(2, 2, 28, 21), 5, 5);
    QPainterPath tail(QPointF(8, 22));
    tail.lineTo(8, 30);
    tail.lineTo(15, 22);
    painter.drawPath(bubble.united(tail));
    useAccent(painter, colours);

    QPainterPath question(QPointF(12, 9));
    question.cubicTo(12, 4, 20, 4, 20, 9);
    question.cubicTo(20, 12, 16, 11, 16, 15);
    painter.drawPath(question);
    drawDot(painter, {16, 19}, 1.5);
}

void drawCombined(QPainter& painter, const PictogramColours& colours)
{
    QPainterPath left(QPointF(8, 4));
    left.cubicTo(2, 10, 2, 22, 8, 28);
    painter.drawPath(left);
    QPainterPath right(QPointF(24, 4));
    right.cubicTo(30, 10, 30, 22, 24, 28);
    painter.drawPath(right);
    useAccent(painter, colours);
    drawPlus(painter, {16, 16}, 5);
}

void drawDrop(QPainter& painter, QPointF tip)
{
    QPainterPath path(QPointF(0, 0));
    path.cubicTo(1.5, 3, 4, 5, 4, 8);
    path.cubicTo(4, 13.3, -4, 13.3, -4, 8);
    path.cubicTo(-4, 5, -1.5, 3, 0, 0);
    painter.drawPath(path.translated(tip));
}

void drawRain(QPainter& painter, const PictogramColours& colours)
{
    drawDrop(painter, {7, 3});
    drawDrop(painter, {25, 6});
    useAccent(painter, colours);
    drawDrop(painter, {16, 17});
}

void drawRace(QPainter& painter, const PictogramColours& colours)
{
    const QPolygonF body{{5, 24}, {2, 24}, {2, 17}, {9, 15}, {14, 7}, {24, 7}, {28, 15}, {30, 17},
        {30, 24}, {28, 24}};
    painter.drawPolyline(body);
    painter.drawLine(QPointF(13, 24), QPointF(20, 24));
    painter.drawLine(QPointF(9, 15), QPointF(28, 15));
    painter.drawLine(QPointF(19, 7), QPointF(19, 15));
    useAccent(painter, colours);
    painter.drawEllipse(QPointF(9, 24), 3.5, 3.5);
    painter.drawEllipse(QPointF(24, 24), 3.5, 3.5);
}

void drawExit(QPainter& painter, const PictogramColours& colours)
{
    painter.drawPolygon(QPolygonF{{3, 2}, {12, 6}, {12, 30}, {3, 26}});
    painter.drawPolyline(QPolygonF{{3, 2}, {19, 2}, {19, 9}});
    painter.drawPolyline(QPolygonF{{12, 26}, {19, 26}, {19, 21}});
    drawDot(painter, {8, 17}, 1.5);
    useAccent(painter, colours);
    painter.drawLine(QPointF(17, 15), QPointF(30, 15));
    painter.drawPolyline(QPolygonF{{26, 11}, {30, 15}, {26, 19}});
}

} // namespace

PictogramDrawing pictogramDrawing(Pictogram id)
{
    switch (id) {
    case Pictogram::RepeatedSum:
        return drawRepeatedSum;
    case Pictogram::Tables:
        return drawTables;
    case Pictogram::QuickTables:
        return drawQuickTables;
    case Pictogram::Gap:
        return drawGap;
    case Pictogram::Multiples:
        return drawMultiples;
    case Pictogram::Multiplication:
        return drawMultiplication;
    case Pictogram::Division:
        return drawDivision;
    case Pictogram::Problems:
        return drawProblems;
    case Pictogram::Combined:
        return drawCombined;
    case Pictogram::Rain:
        return drawRain;
    case Pictogram::Race:
        return drawRace;
    case Pictogram::Exit:
        break;
    }
    return drawExit;
}

} // namespace shell
