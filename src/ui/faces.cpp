#include "ui/faces.h"

#include "ui/look.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

namespace ui {

namespace {

constexpr double ButtonRadius = 8; // pixels at factor 1, as all here
constexpr double BoxRadius = 6;
constexpr double TitleGap = 4; // between a frame and its title
constexpr int IconSize = 32;
constexpr int IconMargin = 14; // left of a button's icon and between it and the caption

void drawRounded(QPainter& painter, const QRect& rect, const QBrush& fill, const QColor& edge,
    double penWidth, double radius)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, penWidth));
    painter.setBrush(fill);
    const double inset = penWidth / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

bool hasIcon(const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && !button->icon.isNull();
}

} // namespace

void drawBox(QPainter& painter, const QStyleOption& option, double factor)
{
    drawRounded(painter, option.rect, option.palette.brush(QPalette::Base), QColor(look::Line),
        factor, BoxRadius * factor);
}

void drawFocusedBox(QPainter& painter, const QStyleOption& option, double factor)
{
    drawRounded(painter, option.rect, option.palette.brush(QPalette::Base), QColor(look::Focus),
        look::RingWidth * factor, BoxRadius * factor);
}

void drawGroup(QPainter& painter, const QStyleOption& option, const QWidget* group, double factor)
{
    QRect frame = option.rect;
    if (const auto* box = qobject_cast<const QGroupBox*>(group); box != nullptr)
        frame.setTop(frame.top() + box->fontMetrics().height() + qRound(TitleGap * factor));
    drawRounded(
        painter, frame, QColor(look::Card), QColor(look::Line), factor, BoxRadius * factor);
}

void drawButton(QPainter& painter, const QStyleOption& option, double factor, bool showsFocus)
{
    const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
    const bool hover = option.state & QStyle::State_MouseOver;
    const bool enabled = option.state & QStyle::State_Enabled;
    QColor fill = option.palette.color(QPalette::Button);
    const QColor edge = fill.darker(166);
    if (down)
        fill = fill.darker(115);
    QRect rect = option.rect;
    if (hasIcon(option)) {
        // The menu's columns touch: a gap in the painting sets them apart.
        const int gap = qRound(look::RingWidth * factor);
        rect.adjust(gap, 0, -gap, 0);
    }
    if (down)
        rect.translate(0, 1);
    const double pen = (hover && enabled ? 2 : 1) * factor;
    drawRounded(painter, rect, fill, edge, pen, ButtonRadius * factor);
    if (showsFocus && (option.state & QStyle::State_HasFocus))
        drawRounded(painter, rect, Qt::NoBrush, QColor(look::Focus), look::RingWidth * factor,
            ButtonRadius * factor);
}

void drawButtonLabel(QPainter& painter, const QStyleOptionButton& option, double factor)
{
    QRect rect = option.rect;
    if (option.state & QStyle::State_Sunken)
        rect.translate(0, 1);
    int flags = Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::AlignHCenter;
    if (hasIcon(option)) {
        const int margin = qRound(IconMargin * factor);
        const int size = qRound(IconSize * factor);
        const QRect icon(
            rect.left() + margin, rect.top() + (rect.height() - size) / 2, size, size);
        option.icon.paint(&painter, icon, Qt::AlignCenter,
            option.state & QStyle::State_Enabled ? QIcon::Normal : QIcon::Disabled);
        rect.setLeft(icon.right() + margin);
        flags = Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::AlignLeft;
    }
    painter.setPen(option.palette.color(QPalette::ButtonText));
    painter.drawText(rect, flags, option.text);
}

void drawMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item)
{
    const bool open =
        (item.state & QStyle::State_Selected) && (item.state & QStyle::State_Sunken);
    painter.fillRect(
        item.rect, item.palette.brush(open ? QPalette::Highlight : QPalette::Window));
    painter.setPen(item.palette.color(open ? QPalette::HighlightedText : QPalette::WindowText));
    painter.drawText(
        item.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, item.text);
}

} // namespace ui
