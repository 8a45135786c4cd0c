#include "tables/quick_tables_widgets.h"

#include "ui/look.h"

#include <QPainter>

namespace tables {

namespace {

constexpr double PatchMarkSize = 44; // pixels at factor 1
constexpr double PatchLeft = 60;
constexpr double Radius = 8;

void drawRounded(QPainter& painter, const QRectF& rect, double radius)
{
    painter.drawRoundedRect(rect, radius, radius);
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
    const QRectF track = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(ui::look::Edge), factor()));
    painter.setBrush(QColor(ui::look::Card));
    drawRounded(painter, track, Radius * factor());
    painter.setPen(QPen(m_colour.darker(166), factor()));
    painter.setBrush(m_colour);
    QRectF left = track;
    left.setWidth(track.width() * m_share);
    drawRounded(painter, left, Radius * factor());
}

} // namespace tables
