#include "written/division_menu.h"

#include "ui/boxes.h"
#include "ui/menu_factory.h"
#include "written/long_division.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace written {

namespace {

constexpr int MenuType = 9;

} // namespace

DivisionMenu::DivisionMenu(
    ui::HandlerGuard& guard, ui::MenuFactory& menus, LongDivision& model, Callbacks callbacks)
    : SignalHandlers(guard, static_cast<QObject&>(*this))
    , m_guard(guard)
    , m_model(model)
    , m_callbacks(std::move(callbacks))
{
    menus.setMenuType(MenuType);
    QMenu* options = menus.menu(u"MnuOpc"_s, u"&Opciones"_s);
    makeSettings(menus, options);
    showDigits();
    on(menus.item(options, u"MnuOpcInt"_s, u"I&ntroducir dividendo"_s), &QAction::triggered,
        &DivisionMenu::IntroduceDividendo);
    on(menus.item(options, u"MnuOpcInd"_s, u"In&troducir divisor"_s), &QAction::triggered,
        &DivisionMenu::IntroduceDivisor);
    on(menus.item(options, u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s), &QAction::triggered,
        m_callbacks.leave);
}

void DivisionMenu::makeSettings(ui::MenuFactory& menus, QMenu* options)
{
    MnuOpcDivLis =
        menus.menuList(menus.submenu(options, u"MnuOpcDiv"_s, u"&Cifras del dividendo"_s),
            u"MnuOpcDivLis"_s, ui::MenuFactory::numberedCaptions(1, 6));
    MnuOpcDisLis =
        menus.menuList(menus.submenu(options, u"MnuOpcDis"_s, u"C&ifras del divisor"_s),
            u"MnuOpcDisLis"_s, ui::MenuFactory::numberedCaptions(1, 6));
    MnuOpcDecLis =
        menus.menuList(menus.submenu(options, u"MnuOpcDec"_s, u"&Decimales del cociente"_s),
            u"MnuOpcDecLis"_s, ui::MenuFactory::numberedCaptions(0, 5));
    onList(MnuOpcDivLis, &DivisionMenu::MnuOpcDivLis_Click);
    onList(MnuOpcDisLis, &DivisionMenu::MnuOpcDisLis_Click);
    onList(MnuOpcDecLis, &DivisionMenu::MnuOpcDecLis_Click);

    MnuOpcRes = menus.checkItem(options, u"MnuOpcRes"_s, u"&Restas intermedias"_s);
    MnuOpcFor = menus.checkItem(options, u"MnuOpcFor"_s, u"&Forzar ceros en el cociente"_s);
    on(MnuOpcRes, &QAction::triggered, &DivisionMenu::MnuOpcRes_Click);
    on(MnuOpcFor, &QAction::triggered, &DivisionMenu::MnuOpcFor_Click);
}

void DivisionMenu::showDigits()
{
    MnuOpcDivLis.check(m_model.settings().CifrasDividendo.value() - 1);
    MnuOpcDisLis.check(m_model.settings().CifrasDivisor.value() - 1);
}

void DivisionMenu::MnuOpcDivLis_Click(int Index)
{
    m_model.chooseDividendDigits(Index + 1);
    showDigits();
}

void DivisionMenu::MnuOpcDisLis_Click(int Index)
{
    m_model.chooseDivisorDigits(Index + 1);
    showDigits();
}

void DivisionMenu::MnuOpcDecLis_Click(int Index)
{
    m_model.chooseDecimals(Index);
    MnuOpcDecLis.check(Index);
    m_callbacks.showExercise();
}

void DivisionMenu::MnuOpcRes_Click()
{
    m_model.toggleProducts();
    MnuOpcRes->setChecked(m_model.settings().RestasIntermedias);
    m_callbacks.showExercise();
}

void DivisionMenu::MnuOpcFor_Click()
{
    m_model.toggleForcedZeros();
    MnuOpcFor->setChecked(m_model.settings().ForzarCeros);
    m_callbacks.showExercise();
}

void DivisionMenu::IntroduceDividendo()
{
    if (!m_model.typeDividend(ui::InputBox::ask(m_guard, QString(), u"Introducir dividendo"_s)))
        return;
    showDigits();
    m_callbacks.showTypedDividend();
}

void DivisionMenu::IntroduceDivisor()
{
    if (!m_model.typeDivisor(ui::InputBox::ask(m_guard, QString(), u"Introducir divisor"_s)))
        return;
    showDigits();
    m_callbacks.showTypedDivisor();
}

} // namespace written
