#include "tables/multiplication_tables_screen.h"

#include "core/clock.h"
#include "core/defect.h"
#include "core/numbers.h"
#include "tables/poster.h"
#include "ui/ground.h"
#include "ui/tray.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace tables {

namespace {

constexpr int MenuType = 12;

} // namespace

Form2::Form2(ui::Screens& screens)
    : DrillScreen(screens, screenName(), QString(), TablesBoard::Width, TablesBoard::Height)
    , m_board(*this)
{
    makeMenu();
    enterChecks(m_board.answer());
    onKeyDown(m_board.answer(),
        [this](int keyCode, Qt::KeyboardModifiers) { return TbOperacion_KeyDown(keyCode); });
    constexpr double Top = 2760;
    constexpr double ButtonHeight = 480;
    makeCommands({.check = {597, Top, 990, ButtonHeight},
        .next = {2907, Top, 1260, ButtonHeight},
        .clear = {1752, Top, 990, ButtonHeight},
        .solution = {4332, Top, 1470, ButtonHeight}});
    makeWayOn();
}

void Form2::makeMenu()
{
    setMenuType(MenuType);
    QMenu* options = menu(u"MnuOpc"_s, u"&Opciones"_s);
    QStringList captions;
    for (int i = 0; i < MultiplicationTables::Tables; ++i)
        captions << u"&%1"_s.arg(m_model.tableAt(i));
    MnuOpcTabLis =
        menuList(submenu(options, u"MnuOpcTab"_s, u"&Tabla"_s), u"MnuOpcTabLis"_s, captions);
    onList(MnuOpcTabLis, &Form2::MnuOpcTabLis_Click);

    QMenu* activities = submenu(options, u"MnuOpcact"_s, u"&Actividad"_s);
    const QStringList names{
        u"&Ver tabla"_s, u"&Repasar tabla en orden"_s, u"&Repasar tabla salteada"_s};
    for (int i = 0; i < MultiplicationTables::Activities; ++i)
        on(item(activities, u"MnuOpcActLis(%1)"_s.arg(i), names.at(i)), &QAction::triggered,
            &Form2::MnuOpcActLis_Click, i);

    on(item(options, u"MnuOpcSal"_s, u"&Salir (Alt - F4)"_s), &QAction::triggered,
        [this] { unload(); });
}

void Form2::makeWayOn()
{
    constexpr double Top = 4500;
    constexpr double ButtonHeight = 480;
    const QColor neutral = ui::look::palette().color(QPalette::Button);
    Command3 = {button(u"Command3(0)"_s, u"Siguiente &actividad"_s,
                    {597, Top, 2515, ButtonHeight}, neutral),
        button(
            u"Command3(1)"_s, u"Siguiente &tabla"_s, {3287, Top, 2515, ButtonHeight}, neutral)};
    for (int i = 0; i < 2; ++i)
        on(core::at(Command3, i), &QPushButton::clicked, &Form2::Command3_Click, i);
    new ui::Tray({Command3[0], Command3[1]});
}

void Form2::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    ui::Ground::pose(*this, ui::Pose::Waiting);
    MnuOpcActLis_Click(MultiplicationTables::ViewTable);
    EscribeTabla();
}

void Form2::EscribeTabla()
{
    m_board.writeTable(m_model.tableText(0), m_model.tableText(1));
}

void Form2::MnuOpcTabLis_Click(int Index)
{
    MnuOpcTabLis.check(Index);
    m_model.chooseTable(Index);
    EscribeTabla();
    takeUpActivity();
}

void Form2::MnuOpcActLis_Click(int Index)
{
    m_model.chooseActivity(Index);
    m_board.showQuestions(m_model.isReview(), {Command2[0], Command2[1], Command2[2], Command1});
    takeUpActivity();
}

void Form2::takeUpActivity()
{
    setWindowTitle(m_model.caption());
    if (m_model.isReview()) {
        newExercise();
    } else {
        m_board.TbTabla1->setFocus();
        sayExercise();
    }
}

void Form2::EmpiezaRepaso()
{
    m_model.newExercise();
    showQuestion();
}

void Form2::showQuestion()
{
    m_board.writeQuestion(m_model.table(), m_model.multiplier());
    Command2[2]->setEnabled(false);
    sayExercise();
}

QString Form2::spokenExercise() const
{
    return m_model.isReview() ? m_model.spokenQuestion() : m_model.spokenTable();
}

void Form2::check()
{
    const auto verdict = m_model.judge(core::readNumber(m_board.answer()->text()));
    if (verdict == shell::Verdict::NotJudged) {
        if (askToRepeat())
            newExercise();
        return;
    }
    showVerdict(*m_board.Text1, m_model.verdict());
    m_board.Text1->showSelected();
    if (verdict == shell::Verdict::Right) {
        SiguientePregunta();
    } else {
        m_board.answer()->clear();
        Command2[2]->setEnabled(true);
    }
}

void Form2::SiguientePregunta()
{
    if (!m_model.isSeriesOver())
        showQuestion();
    else if (ui::MessageBox::ask(*this, m_model.seriesReport(), u"Repaso terminado"_s))
        newExercise();
    else
        Command3_Click(0);
}

/// "&Continuar" checks here, as "&Hecho" does: meant.
void Form2::nextExercise()
{
    check();
    m_board.answer()->setFocus();
}

void Form2::clearAnswer()
{
    m_board.answer()->clear();
    m_board.answer()->setFocus();
}

void Form2::showSolution()
{
    m_board.answer()->setText(QString::number(m_model.showSolution()));
    m_board.answer()->selectAll();
    m_board.answer()->setFocus();
    say(m_model.spokenSolution());
}

void Form2::Command3_Click(int Index)
{
    m_model.clearVerdict();
    showVerdict(*m_board.Text1, m_model.verdict());
    if (Index == 0)
        MnuOpcActLis_Click(m_model.nextActivity());
    else
        MnuOpcTabLis_Click(m_model.nextTable());
}

ui::KeyResult Form2::TbOperacion_KeyDown(int KeyCode)
{
    if (KeyCode == ui::key::F5)
        m_board.selectOperation();
    else
        m_board.deselectOperation();
    return ui::KeyResult::Pass;
}

} // namespace tables
