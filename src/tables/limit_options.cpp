#include "tables/limit_options.h"

#include "core/defect.h"
#include "ui/control_factory.h"
#include "ui/radio_group.h"

#include <QGroupBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace tables {

namespace {

constexpr ui::look::Font LimitFont{ui::look::Family::CourierNew, 18, true};

} // namespace

LimitOptions::LimitOptions(
    ui::ControlFactory& controls, const ui::TwipRect& place, QObject* parent)
    : QObject(parent)
    , Frame1(controls.add(
          new QGroupBox(u"Acabar la actividad"_s, controls.canvas()), u"Frame1"_s, place))
{
    makeWays(controls);
    Label1 = controls.add(new QLabel(Frame1), u"Label1"_s, {2640, 900, 2520, 480});
    Text1 = controls.add(new ui::TextBox(ui::TextBox::Kind::Entry, Frame1), u"Text1"_s,
        {2640, 1410, 1380, 690}, LimitFont);
    Text1->setAccessibleName(u"Límite"_s);
}

void LimitOptions::makeWays(ui::ControlFactory& controls)
{
    constexpr double RowWidth = 2160;
    constexpr double RowHeight = 630;
    const QStringList captions{u"Al pulsar Salir"_s, u"Tiempo"_s, u"Operaciones"_s, u"Errores"_s};
    auto* group =
        controls.add(new ui::RadioGroup(Frame1), {}, {240, 540, RowWidth, 4 * RowHeight});
    for (int i = 0; i < 4; ++i) {
        auto* option = controls.add(new QRadioButton(captions.at(i), group),
            u"Option1(%1)"_s.arg(i), {0, RowHeight * i, RowWidth, 600});
        connect(option, &QRadioButton::toggled, this, [this, i](bool checked) {
            if (checked)
                emit chosen(i);
        });
        // One stop of the tab order: the toolkit sees to it only once an option has had the
        // focus.
        option->setFocusPolicy(i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        core::at(Option1, i) = option;
    }
}

void LimitOptions::chooseNone()
{
    Option1[0]->setChecked(true);
}

void LimitOptions::askLimit(int way)
{
    const bool limited = way != 0;
    // The "h" is meant.
    const QStringList captions{{}, u"Mihnutos: "_s, u"Operaciones: "_s, u"Errores: "_s};
    Label1->setText(captions.at(way));
    Label1->setEnabled(limited);
    Text1->setEnabled(limited);
    if (!limited)
        Text1->clear();
}

QString LimitOptions::limit() const
{
    return Text1->text();
}

void LimitOptions::hide()
{
    Frame1->hide();
}

} // namespace tables
