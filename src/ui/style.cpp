#include "ui/style.h"

#include "ui/access_keys.h"
#include "ui/box_icons.h"
#include "ui/control_painting.h"
#include "ui/indicators.h"
#include "ui/look.h"
#include "ui/opening_factor.h"
#include "ui/scaling.h"
#include "ui/scroll_bar.h"

#include <QAccessible>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Pixels at factor 1.
constexpr QSize SmallestButton(110, 44); // where a layout decides, as in boxes
constexpr QSize SmallestEntry(0, 44); // there too
constexpr int LayoutMargin = 16; // in boxes, and 8 between what stands in them
constexpr int LayoutSpacing = 8;
constexpr int CheckColumn = 24; // of a menu, left of its captions

/// Whether a control shows its focus by itself, as in a box; the ring of a screen shows that of
/// every other one.
bool standsInBox(const QWidget* widget)
{
    return widget == nullptr || qobject_cast<const QDialog*>(widget->window()) != nullptr;
}

bool hasFrame(const QWidget* entry)
{
    const auto* line = qobject_cast<const QLineEdit*>(entry);
    return line == nullptr || line->hasFrame();
}

} // namespace

Style::Style()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
    , m_accessKeys(new AccessKeys(this))
{
}

void Style::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QScrollBar*>(widget) != nullptr)
        widget->setAttribute(Qt::WA_OpaquePaintEvent, false); // its box shows beside the handle
    // A context menu and a tool tip are windows: they inherit no font from their text box.
    const bool hasFont = widget->testAttribute(Qt::WA_SetFont); // as the menus of a bar have
    if ((qobject_cast<QMenu*>(widget) != nullptr && !hasFont) || widget->inherits("QTipLabel"))
        widget->setFont(look::scaled(look::Instruction, overlayFactorOf(*widget)));
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
    const QWidget* widget) const
{
    const double factor = factorOf(widget);
    switch (element) {
    case PE_PanelLineEdit:
        if (hasFrame(widget))
            drawEntry(*painter, *option, factor, standsInBox(widget));
        return;
    case PE_Frame:
        drawBox(*painter, *option, factor);
        return;
    case PE_FrameGroupBox:
        drawGroup(*painter, *option, widget, factor);
        return;
    case PE_IndicatorCheckBox:
        drawCheckBox(*painter, *option, factor);
        return;
    case PE_IndicatorRadioButton:
        drawRadioButton(*painter, *option, factor);
        return;
    case PE_IndicatorArrowRight:
        drawSubmenuArrow(*painter, *option, factor);
        return;
    case PE_FrameFocusRect:
        if (!standsInBox(widget))
            return; // the screen's ring shows the focus
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
    const QWidget* widget) const
{
    const double factor = factorOf(widget);
    if (element == CE_PushButtonBevel) {
        drawButton(*painter, *option, factor, standsInBox(widget));
        return;
    }
    if (element == CE_MenuBarItem) {
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            drawMenuBarItem(*painter, *item, m_accessKeys->areShown(widget));
            return;
        }
    }
    if (element == CE_PushButtonLabel) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            drawButtonLabel(*painter, *button, factor, m_accessKeys->areShown(widget));
            return;
        }
    }
    if (element == CE_CheckBox || element == CE_RadioButton) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            QStyleOptionButton inside(*button);
            inside.rect.setLeft(inside.rect.left() + qRound(look::BoxMargin * factor));
            QProxyStyle::drawControl(element, &inside, painter, widget); // off the focus ring
            return;
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
    QPainter* painter, const QWidget* widget) const
{
    if (control != CC_ScrollBar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const QRect handle = subControlRect(control, option, SC_ScrollBarSlider, widget);
    drawScrollHandle(*painter, *option, handle, factorOf(widget));
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
    SubControl part, const QWidget* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr)
        return partOfScrollBar(*bar, part, pixelMetric(PM_ScrollBarSliderMin, option, widget));
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect Style::subElementRect(
    SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    // A press beside the caption takes the focus: it picks the option, too.
    if (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect)
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

int Style::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int plain = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return qRound(LayoutMargin * factorOf(widget));
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return qRound(LayoutSpacing * factorOf(widget));
    case PM_MessageBoxIconSize:
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
    case PM_ScrollBarExtent:
    case PM_ScrollBarSliderMin:
    case PM_MenuButtonIndicator:
        return qRound(plain * factorOf(widget));
    case PM_TextCursorWidth:
        // The boxes of screens paint their own caret, beside which their text must not give way.
        return qRound(
            (standsInBox(widget) ? look::thick(look::CaretWidth) : plain) * factorOf(widget));
    default:
        return plain;
    }
}

QIcon Style::standardIcon(
    StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const
{
    // Every menu bar asks for it when it is made; decoding it took an eighth of the start,
    // and the program's menus always fit their bar.
    if (pixmap == SP_ToolBarHorizontalExtensionButton)
        return {};
    const bool ofBox = pixmap == SP_MessageBoxInformation || pixmap == SP_MessageBoxWarning
        || pixmap == SP_MessageBoxCritical;
    if (ofBox)
        return boxIcon(pixmap, pixelMetric(PM_MessageBoxIconSize, option, widget));
    return QProxyStyle::standardIcon(pixmap, option, widget);
}

QSize Style::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    const QSize plain = QProxyStyle::sizeFromContents(type, option, size, widget);
    const double factor = factorOf(widget);
    switch (type) {
    case CT_PushButton:
        return plain.expandedTo(SmallestButton * factor);
    case CT_LineEdit:
        return plain.expandedTo(SmallestEntry * factor);
    case CT_MenuBarItem: // as high as the bar, but for the line below
        return {plain.width(), (widget != nullptr ? widget->height() : plain.height()) - 1};
    case CT_MenuItem: // Fusion's column of ticks grows with the font, its width does not
        return plain + QSize(qRound(CheckColumn * std::max(0.0, factor - 1)), 0);
    default:
        return plain;
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
    QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_DialogButtonLayout: // "Aceptar" before "Cancelar", "Sí" before "No" on any desktop
        return QDialogButtonBox::WinLayout;
    case SH_UnderlineShortcut:
        return m_accessKeys->areShown(widget) ? 1 : 0;
    case SH_MenuBar_AltKeyNavigation:
        // Beside a screen reader the toolkit hands keys on late: the release of one Alt comes
        // behind the next press, as if nothing had been pressed in between. F10 leads to the
        // bar then; there, the keys work as ever.
        return QAccessible::isActive() && (widget == nullptr || !widget->hasFocus()) ? 0 : 1;
    case SH_MessageBox_CenterButtons: // at the right, as in every dialog
    case SH_BlinkCursorWhenTextSelected:
    case SH_RequestSoftwareInputPanel:
    case SH_DialogButtonBox_ButtonsHaveIcons: // they would push the captions out
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

} // namespace ui
