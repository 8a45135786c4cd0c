#include "written/scratch_area.h"

#include "ui/look.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace written {

ScratchArea::ScratchArea(QWidget* parent)
    : Memo(Kind::Entry, parent)
{
}

void ScratchArea::setFactor(double factor)
{
    Memo::setFactor(factor);
    QFont squared = font();
    const QFontMetricsF metrics(squared);
    m_square = static_cast<int>(std::ceil(metrics.lineSpacing()));
    m_pen = std::max(1, static_cast<int>(factor));
    const double gap = m_square - metrics.horizontalAdvance(u'0');
    squared.setLetterSpacing(QFont::AbsoluteSpacing, gap);
    setFont(squared);
    // The gap comes behind a character: half of it in front puts it in the middle.
    m_firstColumn = document()->documentMargin() - gap / 2;
}

void ScratchArea::paintEvent(QPaintEvent* event)
{
    drawSquares();
    Memo::paintEvent(event);
}

void ScratchArea::drawSquares()
{
    QPainter painter(viewport());
    const QColor grid(ui::look::Grid);
    const QRect area = viewport()->rect();
    const auto draw = [&](double first, int end, auto line) {
        for (double at = std::fmod(first, m_square); at < end; at += m_square)
            painter.fillRect(line(static_cast<int>(std::floor(at))), grid);
    };
    const QPointF offset = contentOffset();
    const QRectF line = blockBoundingGeometry(firstVisibleBlock()).translated(offset);
    draw(offset.x() + m_firstColumn, area.width(),
        [&](int x) { return QRect(x, 0, m_pen, area.height()); });
    draw(line.top(), area.height(), [&](int y) { return QRect(0, y, area.width(), m_pen); });
}

} // namespace written
