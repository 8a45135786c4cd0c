#include "written/long_division_screen.h"

#include "ui/screens.h"
#include "ui/squared_box.h"

#include <QMenu>

using namespace Qt::StringLiterals;

// The menu of Form6: how it is made and what its items do.

namespace written {

void Form6::makeMenu()
{
    QMenu* options = menu(u"MnuOpc"_s, u"&Opciones"_s);
    makeSettings(options);
    on(item(options, u"MnuOpcInt"_s, u"I&ntroducir dividendo"_s), &QAction::triggered,
        &Form6::IntroduceDividendo);
    on(item(options, u"MnuOpcInd"_s, u"In&troducir divisor"_s), &QAction::triggered,
        &Form6::IntroduceDivisor);
    on(item(options, u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s), &QAction::triggered,
        [this] { unload(); });
}

void Form6::makeSettings(QMenu* options)
{
    MnuOpcDivLis = menuList(submenu(options, u"MnuOpcDiv"_s, u"&Cifras del dividendo"_s),
        u"MnuOpcDivLis"_s, numberedCaptions(1, 6));
    MnuOpcDisLis = menuList(submenu(options, u"MnuOpcDis"_s, u"C&ifras del divisor"_s),
        u"MnuOpcDisLis"_s, numberedCaptions(1, 6));
    MnuOpcDecLis = menuList(submenu(options, u"MnuOpcDec"_s, u"&Decimales del cociente"_s),
        u"MnuOpcDecLis"_s, numberedCaptions(0, 5));
    MnuOpcDivLis.check(1);
    onList(MnuOpcDivLis, &Form6::MnuOpcDivLis_Click);
    onList(MnuOpcDisLis, &Form6::MnuOpcDisLis_Click);
    onList(MnuOpcDecLis, &Form6::MnuOpcDecLis_Click);

    MnuOpcRes = checkItem(options, u"MnuOpcRes"_s, u"&Restas intermedias"_s);
    MnuOpcFor = checkItem(options, u"MnuOpcFor"_s, u"&Forzar ceros en el cociente"_s);
    on(MnuOpcRes, &QAction::triggered, &Form6::MnuOpcRes_Click);
    on(MnuOpcFor, &QAction::triggered, &Form6::MnuOpcFor_Click);
}

void Form6::MnuOpcDivLis_Click(int Index)
{
    m_model.chooseDividendDigits(Index + 1);
    MnuOpcDivLis.check(Index);
}

void Form6::MnuOpcDisLis_Click(int Index)
{
    m_model.chooseDivisorDigits(Index + 1);
    MnuOpcDisLis.check(Index);
}

void Form6::MnuOpcDecLis_Click(int Index)
{
    m_model.chooseDecimals(Index);
    MnuOpcDecLis.check(Index);
    showExercise();
}

void Form6::MnuOpcRes_Click()
{
    m_model.toggleProducts();
    MnuOpcRes->setChecked(m_model.settings().RestasIntermedias);
    showExercise();
}

void Form6::MnuOpcFor_Click()
{
    m_model.toggleForcedZeros();
    MnuOpcFor->setChecked(m_model.settings().ForzarCeros);
    showExercise();
}

void Form6::IntroduceDividendo()
{
    if (!m_model.typeDividend(ui::InputBox::ask(*this, QString(), u"Introducir dividendo"_s)))
        return;
    showWork();
    MnuOpcDivLis.check(m_model.settings().CifrasDividendo.value() - 1);
    showOperation();
}

void Form6::IntroduceDivisor()
{
    if (!m_model.typeDivisor(ui::InputBox::ask(*this, QString(), u"Introducir divisor"_s)))
        return;
    fitSheet();
    m_board.Text2->setText(QString::number(m_model.Divisor()));
    MnuOpcDisLis.check(m_model.settings().CifrasDivisor.value() - 1);
    showOperation();
}

} // namespace written
