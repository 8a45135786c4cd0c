#include "tables/multiplication_tables_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "ui/announcement.h"
#include "ui/screens.h"

#include <QAction>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace tables {

namespace {

constexpr double Width = 5900;
constexpr double Height = 5150;
// Out of the canvas to the right: what hides a control.
constexpr double BoxShift = 5500;
constexpr double CommandShift = 6000;
constexpr double HiddenFrom = 5900;

constexpr ui::look::Font TableFont{Family::CourierNew, 24, true};
constexpr ui::look::Font QuestionFont{Family::CourierNew, 26, true};

} // namespace

QString Form2::screenName()
{
    return u"Form2"_s;
}

Form2::Form2(ui::Screens& screens)
    : ExerciseScreen(screens, screenName(), QString(), Width, Height)
    , m_model(screens.random())
{
    makeMenu();
    makeBoxes();
    makeCommands({.check = {2200, 2350, 1500, 560},
        .next = {2170, 3150, 1560, 560},
        .clear = {460, 3150, 1560, 560},
        .solution = {3880, 3150, 1560, 560}});

    const QColor neutral = ui::look::palette().color(QPalette::Button);
    Command3 = {
        button(u"Command3(0)"_s, u"Siguiente &actividad"_s, {460, 4250, 2415, 560}, neutral),
        button(u"Command3(1)"_s, u"Siguiente &tabla"_s, {3025, 4250, 2415, 560}, neutral)};
    for (int i = 0; i < 2; ++i)
        on(Command3.at(static_cast<std::size_t>(i)), &QPushButton::clicked,
            &Form2::Command3_Click, i);
}

void Form2::makeMenu()
{
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

void Form2::makeBoxes()
{
    TbTabla1 =
        memo(u"TbTabla1"_s, {410, 750, 2490, 2500}, TableFont, u"Primera mitad de la tabla"_s);
    TbTabla2 =
        memo(u"TbTabla2"_s, {3000, 750, 2490, 2500}, TableFont, u"Segunda mitad de la tabla"_s);
    for (ui::Memo* table : {TbTabla1, TbTabla2}) {
        table->setReadOnly(true);
        table->setLineWrapMode(QPlainTextEdit::NoWrap);
        // The text ends with a line end: only an empty line may be cut off.
        table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    constexpr double Top = 900;
    constexpr double BoxHeight = 500;
    TbOperación = {
        displayBox(u"TbOperación(0)"_s, {770, Top, 1000, BoxHeight}, QuestionFont, u"Tabla"_s),
        displayBox(
            u"TbOperación(1)"_s, {1810, Top, 500, BoxHeight}, QuestionFont, u"Por"_s, u"×"_s),
        displayBox(
            u"TbOperación(2)"_s, {2350, Top, 1000, BoxHeight}, QuestionFont, u"Multiplicador"_s),
        displayBox(
            u"TbOperación(3)"_s, {3390, Top, 500, BoxHeight}, QuestionFont, u"Igual a"_s, u"="_s),
        entryBox(
            u"TbOperación(4)"_s, {4030, Top, 1000, BoxHeight}, QuestionFont, u"Respuesta"_s)};
    for (ui::TextBox* box : TbOperación)
        box->setAlignment(Qt::AlignCenter);
    enterChecks(TbOperación[4]);
    onKeyDown(TbOperación[4],
        [this](int keyCode, Qt::KeyboardModifiers) { return TbOperación_KeyDown(keyCode); });

    Text1 = verdictBox(u"Text1"_s, {1150, 1650, 3600, 450}, u"Resultado"_s);
}

void Form2::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    MnuOpcActLis_Click(0);
    EscribeTabla();
}

void Form2::EscribeTabla()
{
    TbTabla1->setPlainText(m_model.tableText(0));
    TbTabla2->setPlainText(m_model.tableText(1));
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
    placeForActivity();
    takeUpActivity();
}

void Form2::takeUpActivity()
{
    setWindowTitle(m_model.caption());
    if (m_model.isReview())
        EmpiezaRepaso();
    else
        TbTabla1->setFocus();
}

void Form2::placeForActivity()
{
    const auto show = [this](QWidget* control, bool shown, double shift) {
        const ui::TwipRect place = placeOf(control);
        const bool isShown = place.left < HiddenFrom;
        if (shown != isShown)
            moveTo(control, place.left + (shown ? -shift : shift), place.top);
        control->setEnabled(shown);
    };
    const bool review = m_model.isReview();
    for (QWidget* table : {TbTabla1, TbTabla2})
        show(table, !review, BoxShift);
    for (QWidget* box : TbOperación)
        show(box, review, BoxShift);
    for (QWidget* command : Command2)
        show(command, review, CommandShift);
    show(Command1, review, CommandShift);
    show(Text1, review, CommandShift);
}

void Form2::EmpiezaRepaso()
{
    m_model.EmpiezaRepaso();
    showQuestion();
}

void Form2::showQuestion()
{
    TbOperación[0]->setText(QString::number(m_model.table()));
    TbOperación[2]->setText(QString::number(m_model.multiplier()));
    TbOperación[4]->clear();
    TbOperación[4]->setFocus();
    showSigns();
    Command2[2]->setEnabled(false);
    ui::announce(*TbOperación[2], u"%1 × %2"_s.arg(m_model.table()).arg(m_model.multiplier()));
}

void Form2::showSigns()
{
    for (std::size_t i = 0; i < 4; ++i)
        TbOperación.at(i)->showSelected();
}

void Form2::Command1_Click()
{
    using Verdict = MultiplicationTables::Verdict;
    using Mark = ui::VerdictBox::Mark;
    const Verdict verdict = m_model.check(core::readNumber(TbOperación[4]->text()));
    if (verdict == Verdict::AlreadyOver) {
        if (askToRepeat())
            EmpiezaRepaso();
        return;
    }
    if (verdict == Verdict::Wrong) {
        Text1->setVerdict(u"resultado incorrecto "_s, Mark::Wrong);
        TbOperación[4]->clear();
        Command2[2]->setEnabled(true);
    } else {
        Text1->setVerdict(u"Resultado correcto"_s, Mark::Right);
    }
    Text1->showSelected();
    if (verdict != Verdict::Wrong)
        SiguientePregunta(verdict == Verdict::SeriesOver);
}

void Form2::SiguientePregunta(bool seriesOver)
{
    if (!seriesOver) {
        showQuestion();
        return;
    }
    const bool again = ui::MessageBox::ask(*this,
        u"Has cometido %1 errores. ¿Deseas volver a realizar esta actividad?"_s.arg(
            m_model.seriesErrors()),
        u"Repaso terminado"_s);
    if (again)
        EmpiezaRepaso();
    else
        Command3_Click(0);
}

void Form2::Command2_Click(int Index)
{
    switch (Index) {
    case 0:
        Command1_Click();
        break;
    case 1:
        TbOperación[4]->clear();
        break;
    default:
        TbOperación[4]->setText(QString::number(m_model.product()));
        TbOperación[4]->selectAll();
        break;
    }
    TbOperación[4]->setFocus();
}

void Form2::Command3_Click(int Index)
{
    Text1->setVerdict({}, ui::VerdictBox::Mark::None);
    if (Index == 0)
        MnuOpcActLis_Click(m_model.nextActivity());
    else
        MnuOpcTabLis_Click(m_model.nextTable());
}

ui::KeyResult Form2::TbOperación_KeyDown(int KeyCode)
{
    if (KeyCode == ui::key::F5) {
        showSigns();
    } else {
        for (std::size_t i = 0; i < 4; ++i)
            TbOperación.at(i)->deselect();
    }
    return ui::KeyResult::Pass;
}

} // namespace tables
