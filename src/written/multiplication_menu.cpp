#include "written/multiplication_menu.h"

#include "ui/boxes.h"
#include "ui/menu_factory.h"
#include "written/long_multiplication.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace written {

namespace {

constexpr int MenuType = 12;

} // namespace

MultiplicationMenu::MultiplicationMenu(ui::HandlerGuard& guard, ui::MenuFactory& menus,
    LongMultiplication& model, Callbacks callbacks)
    : SignalHandlers(guard, static_cast<QObject&>(*this))
    , m_guard(guard)
    , m_model(model)
    , m_callbacks(std::move(callbacks))
{
    menus.setMenuType(MenuType);
    QMenu* options = menus.menu(u"MnuOpc"_s, u"&Opciones"_s);
    makeSettings(menus, options);
    on(menus.item(options, u"MnuOpcIn1"_s, u"I&ntroducir factor 1"_s), &QAction::triggered,
        &MultiplicationMenu::MnuOpcIn1_Click);
    on(menus.item(options, u"MnuOpcIn2"_s, u"In&troducir factor 2"_s), &QAction::triggered,
        &MultiplicationMenu::MnuOpcIn2_Click);
    on(menus.item(options, u"MnuOpcSal"_s, u"S&alir (Alt-F4)"_s), &QAction::triggered,
        m_callbacks.leave);
    MnuOpcCi1Lis.check(m_model.CifrasFactor1().value() - 1);
    MnuOpcCi2Lis.check(m_model.CifrasFactor2().value() - 1);
}

void MultiplicationMenu::makeSettings(ui::MenuFactory& menus, QMenu* options)
{
    const QStringList digits = ui::MenuFactory::numberedCaptions(1, 10);
    MnuOpcCi1Lis = menus.menuList(
        menus.submenu(options, u"MnuOpcCi1"_s, u"&Cifras factor 1"_s), u"MnuOpcCi1Lis"_s, digits);
    onList(MnuOpcCi1Lis, &MultiplicationMenu::MnuOpcCi1Lis_Click);
    MnuOpcCi2Lis = menus.menuList(
        menus.submenu(options, u"MnuOpcCi2"_s, u"C&ifras factor 2"_s), u"MnuOpcCi2Lis"_s, digits);
    onList(MnuOpcCi2Lis, &MultiplicationMenu::MnuOpcCi2Lis_Click);
    MnuOpcSelLis =
        menus.menuList(menus.submenu(options, u"MnuOpcSel"_s, u"&Selección de cifras factor2"_s),
            u"MnuOpcSelLis"_s, {u"&Cualquiera"_s, u"&Seleccionar ()..."_s});
    onList(MnuOpcSelLis, &MultiplicationMenu::MnuOpcSelLis_Click);
    MnuOpcOcu = menus.item(options, u"MnuOpcOcu"_s, u"&Ocultar ceros intermedios (No)"_s);
    on(MnuOpcOcu, &QAction::triggered, &MultiplicationMenu::MnuOpcOcu_Click);
}

void MultiplicationMenu::MnuOpcCi1Lis_Click(int Index)
{
    MnuOpcCi1Lis.check(Index);
    m_model.setCifrasFactor1(Index + 1);
}

void MultiplicationMenu::MnuOpcCi2Lis_Click(int Index)
{
    MnuOpcCi2Lis.check(Index);
    m_model.setCifrasFactor2(Index + 1);
}

void MultiplicationMenu::MnuOpcSelLis_Click(int Index)
{
    if (Index == 1) {
        m_callbacks.openDigits();
        return;
    }
    m_model.allowAnyDigit();
    showChoiceOfDigits();
}

void MultiplicationMenu::chooseDigits(const QString& digits)
{
    m_model.chooseDigits(digits);
    showChoiceOfDigits();
}

void MultiplicationMenu::showChoiceOfDigits()
{
    MnuOpcSelLis.check(m_model.CualquierCifra() ? 0 : 1);
    MnuOpcSelLis.at(1)->setText(m_model.digitsCaption());
    m_callbacks.newExercise();
}

void MultiplicationMenu::MnuOpcOcu_Click()
{
    m_model.toggleOcultarCeros();
    MnuOpcOcu->setText(m_model.zerosCaption());
    m_callbacks.newExercise();
}

void MultiplicationMenu::MnuOpcIn1_Click()
{
    const QString typed = ui::InputBox::ask(
        m_guard, u"Introduzca el primer factor de la multiplicación:"_s, u"Multiplicaciones"_s);
    acceptFactor(m_model.typeFactor1(typed));
}

void MultiplicationMenu::MnuOpcIn2_Click()
{
    const QString typed = ui::InputBox::ask(
        m_guard, u"Introduzca el segundo factor de la multiplicación:"_s, u"Multiplicaciones"_s);
    if (acceptFactor(m_model.typeFactor2(typed)))
        m_callbacks.showVerdict();
}

bool MultiplicationMenu::acceptFactor(TypedFactor outcome)
{
    if (outcome == TypedFactor::TooLarge)
        ui::MessageBox::show(
            m_guard, u"El valor introducido es demasiado grande."_s, u"Multiplicaciones"_s);
    if (outcome != TypedFactor::Accepted)
        return false;
    m_callbacks.showTypedFactors();
    return true;
}

} // namespace written
