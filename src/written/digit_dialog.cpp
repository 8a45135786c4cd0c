#include "written/digit_dialog.h"

#include "core/defect.h"
#include "ui/tray.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace written {

namespace {

constexpr ui::look::Font DigitFont{ui::look::Family::Andika, 24, true};

constexpr int Columns = 3;
// Twips.
constexpr double Width = 4320;
constexpr double Margin = 240;
constexpr double GridTop = 240;
constexpr double ColumnWidth = 1080;
constexpr double GridLeft = (Width - Columns * ColumnWidth) / 2;
constexpr double RowHeight = 690;
constexpr double CommandWidth = (Width - 2 * Margin - 120) / 2;
constexpr double CommandHeight = 600;
constexpr double StripMargin = 180; // around the buttons
constexpr double CommandTop = GridTop + 3 * RowHeight + 120 + StripMargin;
constexpr double Height = CommandTop + CommandHeight + StripMargin;

} // namespace

Dialog::Dialog(ui::Screens& screens)
    : Screen(screens, screenName(), u"Tablas a usar"_s, Width, Height)
{
    for (int i = 0; i < 9; ++i) {
        const int column = i % Columns;
        const int row = i / Columns;
        const ui::TwipRect place{GridLeft + ColumnWidth * column, GridTop + RowHeight * row,
            ColumnWidth - 120, RowHeight - 120};
        auto* box = new QCheckBox(u"&%1"_s.arg(i + 1), canvas());
        box->setAccessibleName(u"Tabla del %1"_s.arg(i + 1));
        core::at(Check1, i) = add(box, u"Check1(%1)"_s.arg(i), place, DigitFont);
    }
    makeWaysOut();
}

void Dialog::makeWaysOut()
{
    const QColor neutral = ui::look::palette().color(QPalette::Button);
    const ui::TwipRect left{Margin, CommandTop, CommandWidth, CommandHeight};
    const ui::TwipRect right{
        Width - Margin - CommandWidth, CommandTop, CommandWidth, CommandHeight};
    OKButton = button(u"OKButton"_s, u"&Aceptar"_s, left, neutral);
    CancelButton = button(u"CancelButton"_s, u"Cancelar"_s, right, neutral);
    on(OKButton, &QPushButton::clicked, &Dialog::OKButton_Click);
    on(CancelButton, &QPushButton::clicked, &Dialog::CancelButton_Click);
    new ui::Tray({OKButton, CancelButton}, ui::Tray::Shape::Strip);
}

void Dialog::OKButton_Click()
{
    QString digits;
    for (std::size_t i = 0; i < Check1.size(); ++i)
        if (Check1[i]->isChecked())
            digits += QString::number(i + 1);
    setTablasSeleccionadas(digits);
    hide();
}

void Dialog::CancelButton_Click()
{
    hide();
}

void Dialog::closeRequested()
{
    CancelButton_Click();
}

} // namespace written
