#include "ui/squared_box.h"

#include "ui/focus_ring.h"
#include "ui/look.h"
#include "ui/marks.h"

#include <QFocusEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr double DigitShare = 0.8; // of the height of a square
constexpr double WidthShare = 0.8; // of its width
constexpr double LargestType = 34; // pixels at factor 1
constexpr double CaretGap = 3; // from the edges: at one, it would melt into the focus ring
constexpr double CaretGapShare = 0.2; // of a square, at most
// QLineEdit's own, inside the margins that can be set; right-aligned text ends two pixels
// before the inner one.
constexpr int InnerMarginX = 2;
constexpr int InnerMarginY = 1;
constexpr int AlignedGap = 2;

/// Where a line edit lays the baseline under the top of its text, which no measure of the font
/// need be.
int layoutAscent(const QFont& font)
{
    QTextLayout sample(u"0"_s, font);
    sample.beginLayout();
    sample.createLine();
    sample.endLayout();
    return static_cast<int>(std::ceil(sample.lineAt(0).ascent()));
}

} // namespace

int SquaredBox::fittingSize(QFont font, double width, double height)
{
    constexpr int Reference = 200;
    font.setPixelSize(Reference);
    const QFontMetricsF metrics(font);
    const double byHeight = height * DigitShare / metrics.tightBoundingRect(u"0"_s).height();
    // The ink counts, not the advance: letter spacing makes up for what overlaps.
    const double byWidth = width * WidthShare / metrics.tightBoundingRect(u"0"_s).width();
    return std::max(1, static_cast<int>(Reference * std::min(byHeight, byWidth)));
}

SquaredBox::SquaredBox(Kind kind, QWidget* parent)
    : TextBox(kind, parent)
{
    setAlignment(Qt::AlignRight | Qt::AlignTop);
    FocusRing::leaveOut(*this);
    setFrame(false); // the squares are frame enough
    QPalette onPaper = palette();
    m_highlight = onPaper.color(QPalette::Highlight);
    onPaper.setColor(QPalette::Base, Qt::transparent);
    onPaper.setColor(QPalette::Highlight, Qt::transparent); // drawn by the box, in squares
    setPalette(onPaper);
}

void SquaredBox::setBlankRun(int blanks)
{
    m_blankRun = blanks;
    setFactor(factor());
}

void SquaredBox::setSquare(double width, double height, double top)
{
    if (m_width == width && m_height == height && m_top == top)
        return;
    m_width = width;
    m_height = height;
    m_top = top;
    setFactor(factor());
}

void SquaredBox::setLeftAligned(double indent)
{
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_indent = indent;
    setFactor(factor());
}

void SquaredBox::setFactor(double factor)
{
    TextBox::setFactor(factor);
    const double pixels = factor / TwipsPerPixel;
    QFont type = font();
    type.setPixelSize(std::min(fittingSize(type, m_width * pixels, m_height * pixels),
        std::max(1, static_cast<int>(LargestType * factor))));
    type.setHintingPreference(QFont::PreferNoHinting); // else a blank is as wide as it likes
    type.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    constexpr int Sample = 10; // laid out together, as they will stand
    const double advance = QFontMetricsF(type).horizontalAdvance(QString(Sample, u'0')) / Sample;
    const double spacing = m_width * pixels - advance;
    type.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    type.setWordSpacing((1 - m_blankRun) * m_width * pixels); // added once to a run
    setFont(type);

    QStyleOptionFrame panel;
    initStyleOption(&panel);
    const QRect inner = style()->subElementRect(QStyle::SE_LineEditContents, &panel, this);
    const double digit = QFontMetricsF(type).tightBoundingRect(u"0"_s).height();
    const double baseline = m_top * pixels + (m_height * pixels + digit) / 2;
    // The spacing stands behind each digit: half of it goes in front of the first one.
    const int left = qRound(m_indent * pixels + spacing / 2) - InnerMarginX - inner.left();
    const int top = static_cast<int>(baseline) - layoutAscent(type) - InnerMarginY - inner.top();
    const int right =
        inner.right() + 1 - InnerMarginX - AlignedGap - width() - qRound(spacing / 2);
    setTextMargins(left, top, right, inner.bottom() + 1 - height());
}

void SquaredBox::write(const QString& text)
{
    setText(text);
    setCursorPosition(0);
}

void SquaredBox::focusInEvent(QFocusEvent*)
{
    // For Tab and access keys QLineEdit would select the text: the next digit would wipe it.
    QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
    TextBox::focusInEvent(&plain);
}

void SquaredBox::paintEvent(QPaintEvent* event)
{
    if (hasSelectedText()) {
        QPainter(this).fillRect(
            strip(lineBefore(selectionStart()), lineBefore(selectionEnd())), m_highlight);
    } else if (hasFocus() && !isReadOnly() && hereSquare().isValid()) {
        QPainter painter(this);
        drawHere(painter, hereSquare(), factor());
    }
    TextBox::paintEvent(event);
    if (hasFocus() && isReadOnly())
        frameFigures();
}

/// The focus of figures that are only read: a thin frame in their own squares.
void SquaredBox::frameFigures()
{
    const double pen = look::thick(look::QuietRingWidth) * factor();
    const QRectF figures = strip(lineBefore(0), lineBefore(static_cast<int>(text().size())));
    QPainter painter(this);
    painter.setPen(QPen(QColor(look::Focus), pen));
    painter.drawRect(figures.adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2));
}

double SquaredBox::squarePixels() const
{
    return m_width * factor() / TwipsPerPixel;
}

/// How many squares the text from an index on takes up.
int SquaredBox::columnsFrom(int index) const
{
    const QString rest = text().sliced(index);
    const auto runs = m_blankRun > 1 ? rest.count(QString(m_blankRun, u' ')) : 0;
    return static_cast<int>(rest.size() - runs * (m_blankRun - 1));
}

/// Where the line in front of a character runs, in pixels from the left edge.
double SquaredBox::lineBefore(int index) const
{
    const bool fromLeft = alignment() & Qt::AlignLeft;
    const double indent = m_indent * factor() / TwipsPerPixel;
    const double length = columnsFrom(0) * squarePixels();
    if (indent + length <= width() + 1)
        return (fromLeft ? indent + length : width()) - columnsFrom(index) * squarePixels();
    // Too long for the box, the text may be scrolled; then only the caret tells by how much.
    const double line = fromLeft ? indent : width();
    const double steps = std::round((cursorRect().center().x() - line) / squarePixels());
    return line + (steps + columnsFrom(cursorPosition()) - columnsFrom(index)) * squarePixels();
}

QRect SquaredBox::strip(double left, double right) const
{
    const double pixels = factor() / TwipsPerPixel;
    return QRect(QPoint(qRound(left), qRound(m_top * pixels)),
        QPoint(qRound(right) - 1, qRound((m_top + m_height) * pixels) - 1));
}

/// Where the next digit will stand, when that square is empty; else an invalid one.
QRect SquaredBox::hereSquare() const
{
    const bool fromLeft = alignment() & Qt::AlignLeft;
    const bool behindText = cursorPosition() == (fromLeft ? text().size() : 0);
    const double line = lineBefore(cursorPosition());
    const double left = fromLeft ? line : line - squarePixels();
    if (!behindText || left < -1 || left + squarePixels() > width() + 1)
        return {};
    return strip(left, left + squarePixels());
}

/// A line between two squares, where the marked square alone would not tell the place.
QRect SquaredBox::caretRect() const
{
    if (hereSquare().isValid())
        return {};
    const int thickness = std::max(1, qRound(look::thick(look::CaretWidth) * factor()));
    const int gap = qRound(std::min(CaretGap * factor(), CaretGapShare * squarePixels()));
    const int at = qRound(lineBefore(cursorPosition())) - thickness / 2;
    const int left = std::clamp(at, gap, std::max(gap, width() - gap - thickness));
    return strip(left, left + thickness);
}

} // namespace ui
