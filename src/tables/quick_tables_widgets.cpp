#include "tables/quick_tables_widgets.h"

#include "ui/look.h"

#include <QPainter>

namespace tables {

namespace {

// Pixels at factor 1.
constexpr double PatchMarkSize = 36;
constexpr double PatchLeft = 46;
constexpr double Radius = 8;

void drawRounded(QPainter& painter, const QRectF& rect, double radius)
{
    painter.drawRoundedRect(rect, radius, radius);
}

void drawFilled(QPainter& painter, const QRectF& rect, const QColor& colour, double factor)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const double pen = ui::look::thick(1) * factor;
    painter.setPen(QPen(ui::look::edgeOf(colour), pen));
    painter.setBrush(colour);
    const double half = pen / 2;
    drawRounded(painter, rect.adjusted(half, half, -half, -half), Radius * factor);
}

} // namespace

VerdictPatch::VerdictPatch(QWidget* parent)
    : VerdictBox(parent)
{
    setMarkSize(PatchMarkSize);
    setAlignment(Qt::AlignCenter); // well inside the patch
}

void VerdictPatch::setPatch(const QString& text, Mark mark, const QColor& colour)
{
    QPalette plain = palette();
    plain.setColor(QPalette::Base, colour);
    plain.setColor(QPalette::Text, colour);
    setPalette(plain);
    setVerdict(text, mark);
}

void VerdictPatch::paintEvent(QPaintEvent* event)
{
    if (mark() != Mark::None) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Base));
        drawRounded(
            painter, QRectF(rect()).adjusted(PatchLeft * factor(), 0, 0, 0), Radius * factor());
    }
    VerdictBox::paintEvent(event);
}

TimeLabel::TimeLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
}

void TimeLabel::setColour(const QColor& colour)
{
    m_colour = colour;
    QPalette own = palette();
    own.setColor(QPalette::Window, colour);
    own.setColor(QPalette::WindowText, ui::look::inkOn(colour));
    setPalette(own);
}

void TimeLabel::paintEvent(QPaintEvent* event)
{
    if (m_colour.isValid()) {
        QPainter painter(this);
        drawFilled(painter, rect(), m_colour, factor());
    }
    QLabel::paintEvent(event);
}

CountdownBar::CountdownBar(QWidget* parent)
    : QWidget(parent)
{
}

void CountdownBar::setRemaining(double share, const QColor& colour)
{
    m_share = share;
    m_colour = colour;
    update();
}

void CountdownBar::paintEvent(QPaintEvent*)
{
    if (!m_colour.isValid())
        return;
    QPainter painter(this);
    drawFilled(painter, rect(), QColor(ui::look::Card), factor());
    QRectF left(rect());
    left.setWidth(left.width() * m_share);
    // A sliver narrower than its corners would be drawn as a lens: it is cut off the bar instead.
    painter.setClipRect(left);
    drawFilled(painter, rect(), m_colour, factor());
}

} // namespace tables
