#include "tables/poster.h"

#include "tables/wood.h"
#include "ui/look.h"

#include <QEvent>
#include <QPainter>
#include <QSyntaxHighlighter>
#include <QTextBlock>

#include <algorithm>

namespace tables {

namespace {

constexpr int LineLength = 10; // characters

// Pixels at factor 1.
constexpr double SideMargin = 8; // of paper beside the rows
constexpr double RowMargin = 6; // between a row's end and its text, at least
constexpr double EndMargin = 6; // of paper above and below them
constexpr double Rod = 9;
constexpr double RodOverhang = 7;

class FactorsQuieter final : public QSyntaxHighlighter {
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString& line) override
    {
        setFormat(0, static_cast<int>(line.indexOf(u'=')) + 1, ui::look::quiet());
    }
};

} // namespace

/// Lets every line but the last take a row; the empty one behind it takes none.
class RowLayout final : public QPlainTextDocumentLayout {
public:
    using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

    void setRowHeight(double pixels) { m_rowHeight = pixels; }

    QRectF blockBoundingRect(const QTextBlock& block) const override
    {
        QRectF place = QPlainTextDocumentLayout::blockBoundingRect(block);
        if (block.length() <= 1)
            place.setHeight(0);
        else if (block.next().length() > 1)
            place.setHeight(m_rowHeight);
        return place;
    }

private:
    double m_rowHeight = 0;
};

Poster::Poster(QWidget* parent)
    : QWidget(parent)
{
}

ui::TwipRect Poster::around(const ui::TwipRect& rows)
{
    const double side = ui::twips(SideMargin + RodOverhang);
    const double end = ui::twips(EndMargin + Rod);
    return {rows.left - side, rows.top - end, rows.width + 2 * side, rows.height + 2 * end};
}

void Poster::paintEvent(QPaintEvent*)
{
    const double f = factor();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF paper =
        QRectF(rect()).adjusted(RodOverhang * f, Rod * f / 2, -RodOverhang * f, -Rod * f / 2);
    painter.setPen(QPen(QColor(ui::look::Edge), ui::look::thick(1) * f));
    painter.setBrush(QColor(ui::look::Card));
    painter.drawRect(paper);

    const QRectF rows = QRectF(rect()).adjusted(
        RodOverhang * f + f, (Rod + EndMargin) * f, -RodOverhang * f - f, -(Rod + EndMargin) * f);
    const double high = rows.height() / Rows;
    for (int row = 0; row < Rows; row += 2)
        painter.fillRect(QRectF(rows.left(), rows.top() + row * high, rows.width(), high),
            QColor(ui::look::Grid));

    drawWood(painter, {0, 0, 1.0 * width(), Rod * f}, f);
    drawWood(painter, {0, height() - Rod * f, 1.0 * width(), Rod * f}, f);
}

PosterHalf::PosterHalf(Side side, QWidget* parent)
    : Memo(Kind::Entry, parent)
    , m_side(side)
{
    auto* text = new QTextDocument(this);
    m_rows = new RowLayout(text);
    text->setDocumentLayout(m_rows);
    setDocument(text);
    m_quieter = new FactorsQuieter(text);
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setPalette(ui::look::displayed());
}

void PosterHalf::setFactor(double factor)
{
    Memo::setFactor(factor);
    document()->setDocumentMargin(0);
    layOutRows();
}

bool PosterHalf::event(QEvent* event)
{
    if (event->type() == ui::look::contrastEvent())
        m_quieter->rehighlight();
    return Memo::event(event);
}

void PosterHalf::changeEvent(QEvent* event)
{
    Memo::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        layOutRows();
}

void PosterHalf::resizeEvent(QResizeEvent* event)
{
    Memo::resizeEvent(event);
    layOutRows();
}

void PosterHalf::layOutRows()
{
    const QFontMetricsF metrics(font()); // its characters are not whole pixels wide
    const double row = 1.0 * height() / Poster::Rows;
    m_rows->setRowHeight(row);
    const int top = qRound((row - metrics.lineSpacing()) / 2);
    const double free = width() - metrics.horizontalAdvance(QString(LineLength, u'0'));
    const double edge = RowMargin * factor();
    // In the middle of half the paper, which reaches beyond the rows.
    const double outwards = std::min(SideMargin * factor() / 2, free / 2 - edge);
    const int left = qRound(free / 2 + (m_side == Side::Left ? -outwards : outwards));
    const QMargins margins(std::max(0, left), std::max(0, top), 0, 0);
    if (margins != viewportMargins())
        setViewportMargins(margins);
    viewport()->update();
}

} // namespace tables
