#include "written/long_multiplication_screen.h"

#include "ui/screens.h"
#include "written/digit_dialog.h"

#include <QMenu>

using namespace Qt::StringLiterals;

// The menu of Form3: how it is made and what its items do.

namespace written {

namespace {

constexpr int MenuType = 12;

} // namespace

void Form3::makeMenu()
{
    setMenuType(MenuType);
    QMenu* options = menu(u"MnuOpc"_s, u"&Opciones"_s);
    makeSettings(options);
    on(item(options, u"MnuOpcIn1"_s, u"I&ntroducir factor 1"_s), &QAction::triggered,
        &Form3::MnuOpcIn1_Click);
    on(item(options, u"MnuOpcIn2"_s, u"In&troducir factor 2"_s), &QAction::triggered,
        &Form3::MnuOpcIn2_Click);
    on(item(options, u"MnuOpcSal"_s, u"S&alir (Alt-F4)"_s), &QAction::triggered,
        [this] { unload(); });
}

void Form3::makeSettings(QMenu* options)
{
    MnuOpcCi1Lis = menuList(submenu(options, u"MnuOpcCi1"_s, u"&Cifras factor 1"_s),
        u"MnuOpcCi1Lis"_s, numberedCaptions(1, 10));
    onList(MnuOpcCi1Lis, &Form3::MnuOpcCi1Lis_Click);
    MnuOpcCi2Lis = menuList(submenu(options, u"MnuOpcCi2"_s, u"C&ifras factor 2"_s),
        u"MnuOpcCi2Lis"_s, numberedCaptions(1, 10));
    onList(MnuOpcCi2Lis, &Form3::MnuOpcCi2Lis_Click);
    MnuOpcSelLis = menuList(submenu(options, u"MnuOpcSel"_s, u"&Selección de cifras factor2"_s),
        u"MnuOpcSelLis"_s, {u"&Cualquiera"_s, u"&Seleccionar ()..."_s});
    onList(MnuOpcSelLis, &Form3::MnuOpcSelLis_Click);
    MnuOpcOcu = item(options, u"MnuOpcOcu"_s, u"&Ocultar ceros intermedios (No)"_s);
    on(MnuOpcOcu, &QAction::triggered, &Form3::MnuOpcOcu_Click);
}

void Form3::MnuOpcCi1Lis_Click(int Index)
{
    MnuOpcCi1Lis.check(Index);
    m_model.setCifrasFactor1(Index + 1);
}

void Form3::MnuOpcCi2Lis_Click(int Index)
{
    MnuOpcCi2Lis.check(Index);
    m_model.setCifrasFactor2(Index + 1);
}

void Form3::MnuOpcSelLis_Click(int Index)
{
    if (Index == 1) {
        screens().showModal<Dialog>(
            *this, [this](const Dialog& dialog) { takeChosenDigits(dialog); });
        return;
    }
    m_model.allowAnyDigit();
    showChoiceOfDigits();
}

void Form3::takeChosenDigits(const Dialog& dialog)
{
    m_model.chooseDigits(dialog.TablasSeleccionadas());
    showChoiceOfDigits();
}

void Form3::showChoiceOfDigits()
{
    MnuOpcSelLis.check(m_model.CualquierCifra() ? 0 : 1);
    MnuOpcSelLis.at(1)->setText(m_model.digitsCaption());
    NuevaMultiplicacion();
}

void Form3::MnuOpcOcu_Click()
{
    m_model.toggleOcultarCeros();
    MnuOpcOcu->setText(m_model.zerosCaption());
    NuevaMultiplicacion();
}

void Form3::MnuOpcIn1_Click()
{
    const QString typed = ui::InputBox::ask(
        *this, u"Introduzca el primer factor de la multiplicación:"_s, u"Multiplicaciones"_s);
    acceptFactor(m_model.typeFactor1(typed));
}

void Form3::MnuOpcIn2_Click()
{
    const QString typed = ui::InputBox::ask(
        *this, u"Introduzca el segundo factor de la multiplicación:"_s, u"Multiplicaciones"_s);
    if (acceptFactor(m_model.typeFactor2(typed)))
        showVerdict(*Text1, m_model.verdict());
}

bool Form3::acceptFactor(TypedFactor outcome)
{
    if (outcome == TypedFactor::TooLarge)
        ui::MessageBox::show(
            *this, u"El valor introducido es demasiado grande."_s, u"Multiplicaciones"_s);
    if (outcome != TypedFactor::Accepted)
        return false;
    PreparaFilas();
    showFactors();
    return true;
}

} // namespace written
