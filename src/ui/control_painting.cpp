#include "ui/control_painting.h"

#include "ui/look.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace ui {

namespace {

constexpr double ButtonRadius = 10; // pixels at factor 1, as all here
constexpr double TitleGap = 4; // between a frame and its title
constexpr int CardSize = 52; // of the paper card that a button's icon lies on
constexpr int IconSize = 44;
constexpr int CardMargin = 11; // left of the card
constexpr int CaptionMargin = 14; // between the card and the caption
constexpr int PressedShade = 125; // per cent
constexpr double RaisedEdge = 3; // of a button under the mouse or held down

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

/// Darker, or lighter where the caption would no longer be readable.
QColor pressed(const QColor& fill, const QColor& caption)
{
    const QColor darker = fill.darker(PressedShade);
    const bool readable = look::contrast(caption, darker) >= look::ReadableContrast;
    return readable ? darker : fill.lighter(PressedShade);
}

bool hasIcon(const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && !button->icon.isNull();
}

/// Draws the icon of a button on a paper card; returns the card's right edge.
int drawIconCard(
    QPainter& painter, const QStyleOptionButton& option, const QRect& rect, double factor)
{
    const int side = std::min(qRound(CardSize * factor), rect.height());
    const int left = rect.left() + qRound(CardMargin * factor);
    const QRect card(left, rect.top() + (rect.height() - side) / 2, side, side);
    drawRounded(painter, card, look::paper(),
        look::edgeOf(option.palette.color(QPalette::Button)),
        look::thick(look::EdgeWidth) * factor, ButtonRadius * factor);
    QRect icon(0, 0, iconSide(factor), iconSide(factor));
    icon.moveCenter(card.center());
    option.icon.paint(&painter, icon, Qt::AlignCenter,
        option.state & QStyle::State_Enabled ? QIcon::Normal : QIcon::Disabled);
    return card.right();
}

} // namespace

void drawBox(QPainter& painter, const QStyleOption& option, double factor)
{
    drawRounded(painter, option.rect, option.palette.brush(QPalette::Base), QColor(look::Edge),
        look::thick(look::EdgeWidth) * factor, look::BoxRadius * factor);
}

void drawEntry(QPainter& painter, const QStyleOption& option, double factor, bool showsFocus)
{
    const bool focused = option.state & QStyle::State_HasFocus;
    const bool typedInto = focused && !(option.state & QStyle::State_ReadOnly);
    const QColor plain = option.palette.color(QPalette::Base);
    const QColor fill =
        typedInto && plain == QColor(look::Card) ? QColor(look::CardFocused) : plain;
    const bool ring = focused && showsFocus;
    drawRounded(painter, option.rect, fill, QColor(ring ? look::Focus : look::Edge),
        look::thick(ring ? look::RingWidth : look::EdgeWidth) * factor, look::BoxRadius * factor);
}

void drawGroup(QPainter& painter, const QStyleOption& option, const QWidget* group, double factor)
{
    QRect frame = option.rect;
    if (const auto* box = qobject_cast<const QGroupBox*>(group); box != nullptr)
        frame.setTop(frame.top() + box->fontMetrics().height() + qRound(TitleGap * factor));
    drawRounded(painter, frame, QColor(look::Card), QColor(look::Edge),
        look::thick(look::EdgeWidth) * factor, look::BoxRadius * factor);
}

QRect buttonFace(const QRect& place, bool hasIcon, double factor)
{
    const int gap = hasIcon ? qRound((look::thick(look::RingWidth) + 1) * factor) : 0;
    return place.adjusted(gap, 0, -gap, 0);
}

void drawButton(QPainter& painter, const QStyleOption& option, double factor, bool showsFocus)
{
    const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
    const bool hover = option.state & QStyle::State_MouseOver;
    const bool enabled = option.state & QStyle::State_Enabled;
    QColor fill = option.palette.color(QPalette::Button);
    const QColor edge = look::edgeOf(fill);
    if (down)
        fill = pressed(fill, option.palette.color(QPalette::ButtonText));
    QRect rect = buttonFace(option.rect, hasIcon(option), factor);
    if (down)
        rect.translate(0, 1);
    const bool raised = enabled && (hover || down);
    const double pen = look::thick(raised ? RaisedEdge : look::EdgeWidth) * factor;
    drawRounded(painter, rect, fill, edge, pen, ButtonRadius * factor);
    if (showsFocus && (option.state & QStyle::State_HasFocus))
        drawRounded(painter, rect, Qt::NoBrush, option.palette.color(QPalette::Highlight),
            look::thick(look::RingWidth) * factor, ButtonRadius * factor);
}

int iconSide(double factor)
{
    return qRound(IconSize * factor);
}

void drawButtonLabel(
    QPainter& painter, const QStyleOptionButton& option, double factor, bool showsAccessKey)
{
    QRect rect = buttonFace(option.rect, hasIcon(option), factor);
    if (option.state & QStyle::State_Sunken)
        rect.translate(0, 1);
    int flags = Qt::AlignVCenter | (showsAccessKey ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    if (hasIcon(option)) {
        rect.setLeft(
            drawIconCard(painter, option, rect, factor) + qRound(CaptionMargin * factor));
        flags |= Qt::AlignLeft;
    } else {
        flags |= Qt::AlignHCenter;
    }
    painter.setPen(option.palette.color(QPalette::ButtonText));
    painter.drawText(rect, flags, option.text);
}

void drawMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item, bool showsAccessKey)
{
    const bool open =
        (item.state & QStyle::State_Selected) && (item.state & QStyle::State_Sunken);
    painter.fillRect(
        item.rect, item.palette.brush(open ? QPalette::Highlight : QPalette::Window));
    painter.setPen(item.palette.color(open ? QPalette::HighlightedText : QPalette::WindowText));
    painter.drawText(item.rect,
        Qt::AlignCenter | Qt::TextSingleLine
            | (showsAccessKey ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
        item.text);
}

} // namespace ui
