#include "problems/problem_session_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "problems/bank.h"
#include "problems/bank_editor_screen.h"
#include "problems/selection_screen.h"
#include "problems/statement_box.h"
#include "ui/ground.h"
#include "ui/quiet_text.h"
#include "ui/screens.h"

#include <QAction>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace problems {

namespace {

// In twips. The answer, its unit, the verdict and the buttons stand on one axis, a little
// inside the statement, where the caption of the answer has room before it.
constexpr double Width = 12240;
constexpr double Height = 6300;
constexpr double Margin = 240;
constexpr double FullWidth = Width - 2 * Margin;
constexpr double Axis = 1860;
constexpr double CaptionGap = 180;
constexpr double StatementTop = 540;
constexpr double StatementHeight = 2700;
constexpr double AnswerTop = 3420;
constexpr double AnswerWidth = 2760;
constexpr double AnswerHeight = 660;
constexpr double VerdictTop = 4200;
constexpr double VerdictHeight = 570;
constexpr double TrayMargin = 180; // around the buttons
constexpr double CommandTop = 5040;
constexpr double CommandHeight = 630;
constexpr double CommandGap = 120;
constexpr double CommandWidth = (Width - Margin - Axis - 2 * TrayMargin - 3 * CommandGap) / 4;
constexpr double CountersTop = 5910;
constexpr double CountersHeight = 330;

ui::TwipRect commandPlace(int position)
{
    return {Axis + TrayMargin + position * (CommandWidth + CommandGap), CommandTop, CommandWidth,
        CommandHeight};
}

// Events run before each draw. Only where hardly a line of a huge bank is selected are there
// more choices than this; then a draw takes a hundredth of what looking for events does, so
// they run every few microseconds instead.
constexpr int ChoicesWithEvents = 500;

constexpr int MenuType = 13;
constexpr ui::look::Font AnswerFont{Family::Andika, 26, true};
constexpr ui::look::Font CaptionFont{Family::Andika, 18, true};
constexpr ui::look::Font UnitFont{Family::Andika, 20};

} // namespace

FormProblemas::FormProblemas(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Problemas"_s, Width, Height)
{
    makeMenu();
    makeBoxes();
    makeCommands(inOrder(commandPlace));
    // No numbers before the first check: meant.
    LBEstado = label(u"LBEstado"_s, u"Ejercicios:   Errores:   "_s,
        {Margin, CountersTop, FullWidth, CountersHeight}, ui::look::Counters);
    new ui::QuietText(LBEstado);
}

void FormProblemas::makeMenu()
{
    setMenuType(MenuType);
    QMenu* options = menu(u"MnuOpc"_s, u"&Opciones"_s);
    on(item(options, u"MnuOpcGes"_s, u"&Gestión de problemas..."_s), &QAction::triggered,
        [this] { MnuOpcGes_Click(); });
    on(item(options, u"MnuOpcSel"_s, u"&Seleccionar problemas..."_s), &QAction::triggered,
        [this] { MnuOpcSel_Click(); });
    // Not guarded: it must close the screen in the middle of a draw too.
    connect(item(options, u"MnuOpcSal"_s, u"&Salir Alt + F4"_s), &QAction::triggered, this,
        [this] { MnuOpcSal_Click(); });
}

void FormProblemas::makeBoxes()
{
    label(u"LBInstruc"_s, u"Resuelva el problema, introduzca el resultado y pulse Hecho"_s,
        {Margin, 105, FullWidth, 390});
    TBEnunciado = add(new StatementBox(canvas()), u"TBEnunciado"_s,
        {Margin, StatementTop, FullWidth, StatementHeight});
    TBEnunciado->setAccessibleName(u"Enunciado"_s);

    TBRespuesta = entryBox(u"TBRespuesta"_s, {Axis, AnswerTop, AnswerWidth, AnswerHeight},
        AnswerFont, u"Respuesta"_s);
    TBRespuesta->setToolTip(u"Escriba el número sin puntos ni espacios: 1200"_s);
    enterChecks(TBRespuesta);
    label(u"LBRespuesta"_s, u"Respuesta"_s,
        {Margin, AnswerTop, Axis - CaptionGap - Margin, AnswerHeight}, CaptionFont, TBRespuesta)
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    constexpr double UnitLeft = Axis + AnswerWidth + CaptionGap;
    LBUnidad = label(u"LBUnidad"_s, QString(),
        {UnitLeft, AnswerTop, Width - Margin - UnitLeft, AnswerHeight}, UnitFont);
    LBUnidad->setWordWrap(true);
    new ui::QuietText(LBUnidad);

    TBCorrecto = verdictBox(u"TBCorrecto"_s,
        {Axis, VerdictTop, Width - Margin - Axis, VerdictHeight}, u"Comprobación"_s);
    TBCorrecto->setJudged({TBRespuesta});
}

void FormProblemas::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    ui::Ground::pose(*this, ui::Pose::Waiting);
    TBRespuesta->setFocus();
    try {
        auto bank = LeerBanco(screens().bankFolder().toRead(), MissingBank::StayInFolder);
        if (!bank)
            return;
        m_model.setBank(*std::move(bank));
        newExercise();
    } catch (const core::Error& error) {
        // The screen comes up all the same: the bank is mended or selected from here.
        m_loadFailure = error.text();
    }
}

void FormProblemas::Form_Activate()
{
    if (!m_loadFailure.isEmpty())
        ui::MessageBox::show(*this, std::exchange(m_loadFailure, {}));
}

void FormProblemas::CargaDatos(core::Int16 Seleccion, OperationMask MaskOpera)
{
    m_model.CargaDatos(Seleccion, MaskOpera);
}

void FormProblemas::NuevoProblema()
{
    int choices = 0;
    m_model.newExercise([&] {
        if (choices < ChoicesWithEvents || choices % ChoicesWithEvents == 0)
            letEventsRun();
        ++choices;
    });
    TBEnunciado->setStatement(m_model.problem().statement);
    LBUnidad->setText(m_model.problem().unit);
    showVerdict(*TBCorrecto, m_model.verdict());
    sayExercise();
}

QString FormProblemas::spokenExercise() const
{
    return m_model.spokenExercise();
}

void FormProblemas::check()
{
    const auto verdict = m_model.judge(core::readNumber(TBRespuesta->text()));
    showVerdict(*TBCorrecto, m_model.verdict());
    if (verdict == shell::Verdict::Wrong) {
        TBRespuesta->clear();
        TBRespuesta->setFocus();
    } else {
        Command2[0]->setFocus();
    }
    LBEstado->setText(m_model.counters().FormatoSimple());
}

void FormProblemas::nextExercise()
{
    newExercise();
    TBRespuesta->clear();
    TBRespuesta->setFocus();
}

void FormProblemas::clearAnswer()
{
    TBRespuesta->clear();
    TBRespuesta->setFocus();
}

void FormProblemas::showSolution()
{
    TBRespuesta->setText(QString::number(m_model.showSolution()));
    say(m_model.spokenSolution());
}

void FormProblemas::MnuOpcGes_Click()
{
    auto& editor = screens().load<DLGProblemas>(); // first: if it fails, this screen stays
    editor.onClosed = [&set = screens()] {
        set.show(screenName()); // made afresh, if it was closed meanwhile
        set.load<FormProblemas>().TBRespuesta->setFocus(); // hiding has moved the focus on
    };
    hide();
    screens().show(DLGProblemas::screenName(), this);
    m_model.setBank({});
    if (auto bank = LeerBanco(screens().bankFolder().toRead()))
        m_model.setBank(*std::move(bank));
}

void FormProblemas::MnuOpcSel_Click()
{
    screens().showModal<DLGSelProb>(*this, [this](const DLGSelProb& dialog) {
        if (const auto& choice = dialog.choice())
            CargaDatos(choice->Seleccion, choice->MaskOpera);
        screens().show(screenName());
        nextExercise();
    });
}

void FormProblemas::MnuOpcSal_Click()
{
    screens().unload(DLGProblemas::screenName());
    unload();
}

} // namespace problems
