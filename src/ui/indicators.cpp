#include "ui/indicators.h"

#include "ui/look.h"
#include "ui/marks.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace ui {

namespace {

constexpr double EdgeWidth = 1.2; // pixels at factor 1
constexpr double TickWidth = 2;
constexpr double CornerRadius = 3;
constexpr double DotShare = 0.45; // of the width of an option's circle
constexpr double ArrowSize = 8;

class Saved {
public:
    explicit Saved(QPainter& painter)
        : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Saved() { m_painter.restore(); }
    Saved(const Saved&) = delete;
    Saved& operator=(const Saved&) = delete;

private:
    QPainter& m_painter;
};

bool isEnabled(const QStyleOption& option)
{
    return option.state & QStyle::State_Enabled;
}

/// Sets edge and fill of an indicator; returns the square on whose sides its edge runs.
QRectF prepare(QPainter& painter, const QStyleOption& option, double factor)
{
    const double width = look::thick(EdgeWidth) * factor;
    painter.setPen(QPen(QColor(isEnabled(option) ? look::Quiet : look::Edge), width));
    const bool down = option.state & QStyle::State_Sunken;
    painter.setBrush(isEnabled(option) && !down ? QColor(look::Card) : look::paper());
    const double side = std::min(option.rect.width(), option.rect.height()) - width;
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(option.rect).center());
    return square;
}

QColor markColour(const QStyleOption& option)
{
    return QColor(isEnabled(option) ? look::Ink : look::Quiet);
}

} // namespace

void drawCheckBox(QPainter& painter, const QStyleOption& option, double factor)
{
    const Saved saved(painter);
    const QRectF square = prepare(painter, option, factor);
    painter.drawRoundedRect(square, CornerRadius * factor, CornerRadius * factor);
    if (!(option.state & QStyle::State_On))
        return;
    painter.setPen(
        QPen(markColour(option), TickWidth * factor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    drawTick(painter, square);
}

void drawRadioButton(QPainter& painter, const QStyleOption& option, double factor)
{
    const Saved saved(painter);
    const QRectF square = prepare(painter, option, factor);
    painter.drawEllipse(square);
    if (!(option.state & QStyle::State_On))
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(markColour(option));
    const double radius = square.width() * DotShare / 2;
    painter.drawEllipse(square.center(), radius, radius);
}

void drawSubmenuArrow(QPainter& painter, const QStyleOption& option, double factor)
{
    const Saved saved(painter);
    const bool selected = option.state & QStyle::State_Selected;
    painter.setPen(Qt::NoPen);
    painter.setBrush(
        option.palette.color(selected ? QPalette::HighlightedText : QPalette::WindowText));
    const double height = ArrowSize * factor;
    const QPointF middle = QRectF(option.rect).center();
    painter.drawPolygon(QPolygonF({middle + QPointF(-height / 4, -height / 2),
        middle + QPointF(height / 4, 0), middle + QPointF(-height / 4, height / 2)}));
}

} // namespace ui
