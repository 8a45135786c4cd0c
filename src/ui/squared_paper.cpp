#include "ui/squared_paper.h"

#include "ui/look.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

/// Calls draw with the pixel of every line of a pitch that falls within from to to; first
/// and pitch are in twips, pixels are on the parent.
template <typename Draw>
void forEachLine(double first, double pitch, double factor, int from, int to, Draw draw)
{
    for (double step = std::floor((from * TwipsPerPixel / factor - first) / pitch);; ++step) {
        const int pixel = toPixels({first + step * pitch, 0, 0, 0}, factor).left();
        if (pixel >= to)
            return;
        if (pixel > from)
            draw(pixel - from);
    }
}

} // namespace

SquaredPaper::SquaredPaper(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SquaredPaper::setSquare(const TwipRect& square)
{
    m_square = square;
    update();
}

void SquaredPaper::setFill(const QColor& fill)
{
    m_fill = fill;
    update();
}

void SquaredPaper::setEdge(double width)
{
    m_edge = width;
    update();
}

void SquaredPaper::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int pen = std::max(1, static_cast<int>(factor()));
    const QColor grid(look::Grid);
    painter.fillRect(rect(), m_fill);
    forEachLine(m_square.left, m_square.width, factor(), x(), x() + width(),
        [&](int at) { painter.fillRect(at - pen / 2, 0, pen, height(), grid); });
    forEachLine(m_square.top, m_square.height, factor(), y(), y() + height(),
        [&](int at) { painter.fillRect(0, at - pen / 2, width(), pen, grid); });
    const double edge = std::max(1.0, std::round(look::thick(m_edge) * factor()));
    painter.setPen(QPen(QColor(look::Edge), edge, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(rect()).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2));
}

} // namespace ui
