#include "problems/problem_session_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "problems/bank.h"
#include "problems/bank_editor_screen.h"
#include "problems/selection_screen.h"
#include "problems/statement_box.h"
#include "ui/screens.h"

#include <QAction>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace problems {

namespace {

constexpr double Width = 9900;
constexpr double Height = 7680;
constexpr double Margin = 240;
constexpr double StatementHeight = 3090; // six lines
constexpr double AnswerTop = 4050;
constexpr double AnswerHeight = 720;

// Events run before each draw. Only where hardly a line of a huge bank is selected are there
// more draws than this; then a draw takes a hundredth of what looking for events does, so
// they run every few microseconds instead.
constexpr int DrawsWithEvents = 500;

constexpr ui::look::Font StatementFont{Family::Arial, 17};
constexpr ui::look::Font AnswerFont{Family::CourierNew, 28, true};

} // namespace

QString FormProblemas::screenName()
{
    return u"FormProblemas"_s;
}

FormProblemas::FormProblemas(ui::Screens& screens)
    : DrillScreen(screens, screenName(), u"Problemas"_s, Width, Height)
{
    makeMenu();
    makeBoxes();
    makeCommands({.check = {4170, 5400, 1560, 570},
        .next = {4170, 6210, 1560, 570},
        .clear = {2430, 6210, 1560, 570},
        .solution = {5910, 6210, 1560, 570}});
    LBEstado = label(u"LBEstado"_s, u"Ejercicios:   Errores:   "_s,
        {Margin, Height - 540, Width - 2 * Margin, 300}, ui::look::Counters);
}

void FormProblemas::makeMenu()
{
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
        {Margin, 180, Width - 2 * Margin, 390});
    TBEnunciado = add(new StatementBox(canvas()), u"TBEnunciado"_s,
        {Margin, 660, Width - 2 * Margin, StatementHeight}, StatementFont);
    TBEnunciado->setAccessibleName(u"Enunciado"_s);

    TBRespuesta = entryBox(
        u"TBRespuesta"_s, {1680, AnswerTop, 2760, AnswerHeight}, AnswerFont, u"Respuesta"_s);
    TBRespuesta->setToolTip(u"Escriba el número sin puntos ni espacios: 1200"_s);
    enterChecks(TBRespuesta);
    label(u"LBRespuesta"_s, u"Respuesta"_s, {Margin, AnswerTop, 1320, AnswerHeight},
        StatementFont, TBRespuesta);
    LBUnidad = label(u"LBUnidad"_s, QString(),
        {4620, AnswerTop, Width - Margin - 4620, AnswerHeight}, StatementFont);
    LBUnidad->setWordWrap(true);

    TBCorrecto = verdictBox(u"TBCorrecto"_s, {1680, 4860, 4500, 420}, u"Comprobación"_s);
}

void FormProblemas::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
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
    int draws = 0;
    m_model.newExercise([&] {
        if (draws < DrawsWithEvents || draws % DrawsWithEvents == 0)
            letEventsRun();
        ++draws;
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
