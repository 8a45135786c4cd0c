#include "problems/editor_buttons.h"

#include "core/defect.h"
#include "ui/control_factory.h"
#include "ui/tray.h"

using namespace Qt::StringLiterals;

namespace problems {

namespace {

// In twips.
constexpr double Gap = 120;
constexpr double StripGap = 180; // above the strip
constexpr double StripMargin = 180; // around the ways out
constexpr double WayOutWidth = 1920;
constexpr double WayOutHeight = 600;
static_assert(EditorButtons::BelowActions == StripGap + 2 * StripMargin + WayOutHeight);

QColor colour()
{
    return ui::look::palette().color(QPalette::Button);
}

} // namespace

EditorButtons::EditorButtons(ui::ControlFactory& controls, QPointF corner, double width)
{
    makeActions(controls, corner, width);
    makeWaysOut(controls, corner + QPointF(width, ActionHeight + StripGap + StripMargin));
}

void EditorButtons::makeActions(ui::ControlFactory& controls, QPointF corner, double width)
{
    const double actionWidth = (width - 3 * Gap) / 4;
    const auto place = [corner, actionWidth](int column) {
        return ui::TwipRect{
            corner.x() + column * (actionWidth + Gap), corner.y(), actionWidth, ActionHeight};
    };
    // The blank at the end of "Probar" is meant.
    CBProbar = controls.button(u"CBProbar"_s, u"&Probar "_s, place(0), colour());
    const QStringList captions{u"&Guardar"_s, u"&Limpiar"_s, u"&Borrar"_s};
    for (int i = 0; i < captions.size(); ++i)
        core::at(CBAccion, i) =
            controls.button(u"CBAccion(%1)"_s.arg(i), captions.at(i), place(i + 1), colour());
}

void EditorButtons::makeWaysOut(ui::ControlFactory& controls, QPointF upperRight)
{
    const double left = upperRight.x() - WayOutWidth;
    OKButton = controls.button(u"OKButton"_s, u"Aceptar"_s,
        {left - Gap - WayOutWidth, upperRight.y(), WayOutWidth, WayOutHeight}, colour());
    CancelButton = controls.button(u"CancelButton"_s, u"&Cancelar"_s,
        {left, upperRight.y(), WayOutWidth, WayOutHeight}, colour());
    // A click on it leaves no box, so that a box with a mistake cannot stand in its way.
    CancelButton->setFocusPolicy(Qt::TabFocus);
    new ui::Tray({OKButton, CancelButton}, ui::Tray::Shape::Strip);
}

} // namespace problems
