#include "problems/bank_editor_screen.h"

#include "core/defect.h"
#include "ui/leave_check.h"
#include "ui/list_box.h"
#include "ui/tray.h"

#include <QCheckBox>

#include <limits>

using namespace Qt::StringLiterals;

// The controls of the editor: where they are and what they are connected to.

namespace problems {

namespace {

// In twips: the list at the left, what is edited of its entry at the right.
constexpr double Width = 13800;
constexpr double Margin = 240;
constexpr double Gap = 120;
constexpr double GroupGap = 195; // before the caption of the next field
constexpr double ListWidth = 4980;
constexpr double FieldLeft = Margin + ListWidth + 360;
constexpr double FieldWidth = Width - Margin - FieldLeft;
constexpr double LabelHeight = 345;
constexpr double LabelGap = 60; // the ring of a focused box lies there
constexpr double LabelStep = LabelHeight + LabelGap;
constexpr double BoxHeight = 510;
constexpr double CommandHeight = 510;
constexpr double InsertWidth = 3240;
constexpr double UnsavedWidth = 4800;

constexpr double FirstLabel = 120;
constexpr double FirstBox = FirstLabel + LabelStep;
constexpr double StatementHeight = 1740; // four lines
constexpr double StatementInserts = FirstBox + StatementHeight + Gap;
constexpr double AnswerTop = StatementInserts + CommandHeight + GroupGap + LabelStep;
constexpr double AnswerInserts = AnswerTop + BoxHeight + Gap;
constexpr double UnitTop = AnswerInserts + CommandHeight + GroupGap + LabelStep;
constexpr double ActionsTop = UnitTop + BoxHeight + 2 * Gap;
constexpr double ListBottom = ActionsTop + CommandHeight;
constexpr double StripMargin = 180; // around the ways out
constexpr double WayOutTop = ListBottom + 180 + StripMargin;
constexpr double WayOutWidth = 1920;
constexpr double WayOutHeight = 600;
constexpr double Height = WayOutTop + WayOutHeight + StripMargin;

constexpr ui::look::Font FieldFont{ui::look::Family::Andika, 15};
constexpr ui::look::Font ListFont{ui::look::Family::Andika, 14};

const QString InsertDatum = u"Insertar dato &variable"_s;
const QString InsertComputed = u"&Reinsertar dato variable"_s;

QColor commandColour()
{
    return ui::look::palette().color(QPalette::Button);
}

} // namespace

DLGProblemas::DLGProblemas(ui::Screens& screens)
    : Screen(screens, screenName(), u"Gestión de problemas"_s, Width, Height)
    , m_evaluator(u"VBScript"_s)
{
    makeList(); // all in the order in which Tab goes through them
    makeStatement();
    makeAnswer();
    makeUnit();
    makeOperations();
    makeActions();
    makeWaysOut();
    checkOnLeaving(Text1, statementFault, &DLGProblemas::Text1_Validate);
    checkOnLeaving(Text2, answerFault, &DLGProblemas::Text2_Validate);
    markWhatIsUnsaved();
    addToolTips();
}

void DLGProblemas::makeList()
{
    List1 = add(new ui::ListBox(canvas(), ui::ListBox::Start::Flush), u"List1"_s,
        {Margin, FirstBox, ListWidth, ListBottom - FirstBox}, ListFont);
    List1->setAccessibleName(u"Problemas disponibles"_s);
    label(u"Label4"_s, u"Problemas &disponibles"_s, {Margin, FirstLabel, ListWidth, LabelHeight},
        ui::look::Instruction, List1);
    on(List1, &QListWidget::itemSelectionChanged, &DLGProblemas::List1_Click);
    // A click on the entry that is selected already changes no selection.
    on(List1, &QListWidget::itemClicked, [this] { List1_Click(); });
}

void DLGProblemas::makeStatement()
{
    Text1 = memo(u"Text1"_s, {FieldLeft, FirstBox, FieldWidth, StatementHeight}, FieldFont,
        u"Enunciado"_s);
    label(u"Label1"_s, u"&Enunciado"_s,
        {FieldLeft, FirstLabel, FieldWidth - UnsavedWidth, LabelHeight}, ui::look::Instruction,
        Text1);
    restrictKeys(Text1);
    on(insertCommand(1, InsertDatum, u"en el enunciado"_s, {FieldLeft, StatementInserts}),
        &QPushButton::clicked, &DLGProblemas::Command1_Click);
    on(insertCommand(2, InsertComputed, u"en el enunciado"_s,
           {FieldLeft + InsertWidth + Gap, StatementInserts}),
        &QPushButton::clicked, &DLGProblemas::Command2_Click);
}

void DLGProblemas::makeAnswer()
{
    Text2 = entryBox(
        u"Text2"_s, {FieldLeft, AnswerTop, FieldWidth, BoxHeight}, FieldFont, u"Resultado"_s);
    label(u"Label2"_s, u"&Resultado"_s,
        {FieldLeft, AnswerTop - LabelStep, FieldWidth, LabelHeight}, ui::look::Instruction,
        Text2);
    Text2->setMaxLength(std::numeric_limits<int>::max()); // a line is shown whole
    restrictKeys(Text2);
    on(insertCommand(3, InsertDatum, u"en el resultado"_s, {FieldLeft, AnswerInserts}),
        &QPushButton::clicked, &DLGProblemas::Command3_Click);
    on(insertCommand(4, InsertComputed, u"en el resultado"_s,
           {FieldLeft + InsertWidth + Gap, AnswerInserts}),
        &QPushButton::clicked, &DLGProblemas::Command4_Click);
}

ui::Button* DLGProblemas::insertCommand(
    int number, const QString& caption, const QString& target, const ui::TwipRect& place)
{
    auto* command = button(u"Command%1"_s.arg(number), caption,
        {place.left, place.top, InsertWidth, CommandHeight}, commandColour());
    command->setAccessibleName(QString(caption).remove(u'&') + u' ' + target);
    return command;
}

void DLGProblemas::makeUnit()
{
    constexpr double UnitWidth = InsertWidth;
    Text3 =
        entryBox(u"Text3"_s, {FieldLeft, UnitTop, UnitWidth, BoxHeight}, FieldFont, u"Unidad"_s);
    label(u"Label3"_s, u"&Unidad"_s, {FieldLeft, UnitTop - LabelStep, UnitWidth, LabelHeight},
        ui::look::Instruction, Text3);
    Text3->setMaxLength(std::numeric_limits<int>::max());
    restrictKeys(Text3);
}

void DLGProblemas::makeOperations()
{
    const std::array captions{u"Mult"_s, u"Div"_s, u"Sum"_s, u"Rest"_s};
    const std::array names{u"Multiplicación"_s, u"División"_s, u"Suma"_s, u"Resta"_s};
    constexpr double Step = 1080;
    double left = FieldLeft + InsertWidth + 2 * Gap;
    for (std::size_t k = 0; k < CHOpera.size(); ++k, left += Step) {
        CHOpera[k] = add(new QCheckBox(captions[k], canvas()), u"CHOpera(%1)"_s.arg(k),
            {left, UnitTop, Step, BoxHeight});
        CHOpera[k]->setAccessibleName(names[k]);
    }
}

void DLGProblemas::makeActions()
{
    constexpr double ActionWidth = (FieldWidth - 3 * Gap) / 4;
    const auto place = [](int column) {
        return ui::TwipRect{
            FieldLeft + column * (ActionWidth + Gap), ActionsTop, ActionWidth, CommandHeight};
    };
    // The blank at the end of "Probar" is meant.
    on(button(u"CBProbar"_s, u"&Probar "_s, place(0), commandColour()), &QPushButton::clicked,
        &DLGProblemas::CBProbar_Click);
    const QStringList captions{u"&Guardar"_s, u"&Limpiar"_s, u"&Borrar"_s};
    for (int i = 0; i < captions.size(); ++i) {
        auto*& action = core::at(CBAccion, i);
        action = button(u"CBAccion(%1)"_s.arg(i), captions.at(i), place(i + 1), commandColour());
        on(action, &QPushButton::clicked, &DLGProblemas::CBAccion_Click, i);
    }
}

void DLGProblemas::makeWaysOut()
{
    const ui::TwipRect right{Width - Margin - WayOutWidth, WayOutTop, WayOutWidth, WayOutHeight};
    const ui::TwipRect left{right.left - Gap - WayOutWidth, WayOutTop, WayOutWidth, WayOutHeight};
    auto* OKButton = button(u"OKButton"_s, u"Aceptar"_s, left, commandColour());
    on(OKButton, &QPushButton::clicked, &DLGProblemas::OKButton_Click);
    CancelButton = button(u"CancelButton"_s, u"&Cancelar"_s, right, commandColour());
    // A click on it leaves no box, so that a box with a mistake cannot stand in its way.
    CancelButton->setFocusPolicy(Qt::TabFocus);
    on(CancelButton, &QPushButton::clicked, &DLGProblemas::CancelButton_Click);
    new ui::Tray({OKButton, CancelButton}, ui::Tray::Shape::Strip);
}

void DLGProblemas::checkOnLeaving(
    QWidget* box, QString (*fault)(const TemplateFields&), void (DLGProblemas::*validate)())
{
    const auto check = [this, fault, validate] {
        QString reason = fault(fields());
        if (reason.isEmpty())
            guarded([&] { (this->*validate)(); });
        return reason;
    };
    const auto tell = [this, validate](const QString& reason) {
        guarded([&] {
            ui::MessageBox::show(*this, reason);
            (this->*validate)();
        });
    };
    (new ui::LeaveCheck(box, check, tell))->exempt(CancelButton);
}

void DLGProblemas::restrictKeys(QWidget* box)
{
    onKeyPress(box, [this](QChar character) {
        if (character == u'|')
            ui::MessageBox::show(*this, separatorRefusal());
        const bool breaksLine = character == QChar(ui::key::Enter);
        return character == u'|' || breaksLine ? ui::KeyResult::Swallow : ui::KeyResult::Pass;
    });
}

void DLGProblemas::markWhatIsUnsaved()
{
    m_unsaved = label(u"unsaved"_s, u"● Sin guardar: falta pulsar Guardar"_s,
        {Width - Margin - UnsavedWidth, FirstLabel, UnsavedWidth, LabelHeight});
    m_unsaved->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QPalette colours = m_unsaved->palette();
    colours.setColor(QPalette::WindowText, ui::look::Wrong);
    m_unsaved->setPalette(colours);
    on(Text1, &QPlainTextEdit::textChanged, &DLGProblemas::showWhetherSaved);
    on(Text2, &QLineEdit::textChanged, [this] { showWhetherSaved(); });
    on(Text3, &QLineEdit::textChanged, [this] { showWhetherSaved(); });
    for (QCheckBox* operation : CHOpera)
        on(operation, &QCheckBox::toggled, [this] { showWhetherSaved(); });
    showWhetherSaved();
}

void DLGProblemas::addToolTips()
{
    Text1->setToolTip(u"[2_9] es un dato al azar del 2 al 9; {&1*&2}, un valor calculado con "
                      "los datos 1 y 2. Un paréntesis siempre se calcula."_s);
    Text2->setToolTip(
        u"Lo que ha de dar, casi siempre entre llaves: {&1*&2}. Un dato escrito aquí no se ve."_s);
    Text3->setToolTip(u"La palabra que sigue a la respuesta, como euros. Puede faltar."_s);
    for (QCheckBox* operation : CHOpera)
        operation->setToolTip(u"Marque en último lugar las operaciones que hace el alumno."_s);
}

} // namespace problems
