#include "written/digit_dialog.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace written {

namespace {

constexpr ui::look::Font DigitFont{ui::look::Family::CourierNew, 24, true};

constexpr int Columns = 3;
constexpr double Margin = 480;
constexpr double ColumnWidth = 1200;
constexpr double RowHeight = 660;
constexpr double ButtonTop = 2760;

} // namespace

QString Dialog::screenName()
{
    return u"Dialog"_s;
}

Dialog::Dialog(ui::Screens& screens)
    : Screen(screens, screenName(), u"Tablas a usar"_s, 4320, 3660)
{
    for (int i = 0; i < 9; ++i) {
        const ui::TwipRect place{Margin + ColumnWidth * (i % Columns),
            Margin + RowHeight * (i / Columns), ColumnWidth - 240, RowHeight - 120};
        auto* box = new QCheckBox(u"&%1"_s.arg(i + 1), canvas());
        box->setAccessibleName(u"Tabla del %1"_s.arg(i + 1));
        Check1.at(static_cast<std::size_t>(i)) =
            add(box, u"Check1(%1)"_s.arg(i), place, DigitFont);
    }
    const QColor neutral = ui::look::palette().color(QPalette::Button);
    OKButton = button(u"OKButton"_s, u"&Aceptar"_s, {360, ButtonTop, 1680, 560}, neutral);
    CancelButton =
        button(u"CancelButton"_s, u"Cancelar"_s, {2280, ButtonTop, 1680, 560}, neutral);
    on(OKButton, &QPushButton::clicked, &Dialog::OKButton_Click);
    on(CancelButton, &QPushButton::clicked, &Dialog::CancelButton_Click);
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
