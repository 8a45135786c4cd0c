#include "written/scratch_area.h"

#include "ui/look.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace written {

namespace {

/// What a line of text really takes, which no measure of the font need be.
int lineHeight(const QFont& font)
{
    QTextLayout sample(QStringLiteral("0"), font);
    sample.beginLayout();
    sample.createLine();
    sample.endLayout();
    return static_cast<int>(std::ceil(sample.lineAt(0).height()));
}

} // namespace

ScratchArea::ScratchArea(QWidget* parent)
    : Memo(Kind::Entry, parent)
{
}

void ScratchArea::setFactor(double factor)
{
    Memo::setFactor(factor);
    QFont squared = font();
    const QFontMetricsF metrics(squared);
    m_square = lineHeight(squared);
    m_pen = std::max(1, static_cast<int>(factor));
    m_corner = qRound(ui::look::CornerMargin * factor);
    const double gap = m_square - metrics.horizontalAdvance(u'0');
    squared.setLetterSpacing(QFont::AbsoluteSpacing, gap);
    setFont(squared);
    // The gap comes behind a character: half of it in front puts it in the middle.
    // Whole pixels, so that the lines of text and of squares begin at the same one.
    document()->setDocumentMargin(qRound(gap / 2));
    fitWholeSquares();
}

void ScratchArea::resizeEvent(QResizeEvent* event)
{
    Memo::resizeEvent(event);
    fitWholeSquares();
}

/// Leaves a view of as many whole squares as there is room for, in the middle of the box.
void ScratchArea::fitWholeSquares()
{
    const QMargins now = viewportMargins();
    const auto margins = [&](int room, double start) {
        const int fixed = static_cast<int>(std::ceil(start)) + m_pen;
        const int squares = std::max(1, (room - 2 * m_corner - fixed) / m_square);
        const int rest = std::max(0, room - fixed - squares * m_square);
        return std::pair(rest / 2, rest - rest / 2);
    };
    const auto [left, right] = margins(viewport()->width() + now.left() + now.right(), 0);
    const auto [top, bottom] =
        margins(viewport()->height() + now.top() + now.bottom(), document()->documentMargin());
    const QMargins wanted(left, top, right, bottom);
    if (wanted != now)
        setViewportMargins(wanted);
}

void ScratchArea::paintEvent(QPaintEvent* event)
{
    paintSquares();
    Memo::paintEvent(event);
}

void ScratchArea::paintSquares()
{
    QPainter painter(viewport());
    const QColor grid(ui::look::Grid);
    const double line =
        blockBoundingGeometry(firstVisibleBlock()).translated(contentOffset()).top();
    const int top = qRound(std::fmod(line, m_square)); // as the text is placed
    const int rows = (viewport()->height() - m_pen - top) / m_square;
    const int columns = (viewport()->width() - m_pen) / m_square;
    for (int column = 0; column <= columns; ++column)
        painter.fillRect(column * m_square, top, m_pen, rows * m_square + m_pen, grid);
    for (int row = 0; row <= rows; ++row)
        painter.fillRect(0, top + row * m_square, columns * m_square + m_pen, m_pen, grid);
}

} // namespace written
