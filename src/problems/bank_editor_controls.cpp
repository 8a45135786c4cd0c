#include "problems/bank_editor_screen.h"

#include "core/defect.h"
#include "ui/leave_check.h"
#include "ui/list_box.h"
#include "ui/tray.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

// The controls of the editor: where they are and what they are connected to.

namespace problems {

namespace {

// In twips: the list at the left, what is edited of its entry at the right.
constexpr double Width = 13800;
constexpr double Margin = 240;
constexpr double Gap = 120;
constexpr double Top = 120;
constexpr double ListWidth = 4980;
constexpr double FormLeft = Margin + ListWidth + 360;
constexpr double FormWidth = Width - Margin - FormLeft;
constexpr double CommandHeight = 510;
constexpr double CommandWidth = (FormWidth - 3 * Gap) / 4;
constexpr double ActionsTop = Top + TemplateForm::Height + 2 * Gap;
constexpr double ListTop = Top + TemplateForm::LabelStep;
constexpr double ListBottom = ActionsTop + CommandHeight;
constexpr double StripMargin = 180; // around the ways out
constexpr double WayOutTop = ListBottom + 180 + StripMargin;
constexpr double WayOutHeight = 600;
constexpr double Height = WayOutTop + WayOutHeight + StripMargin;

constexpr ui::look::Font ListFont{ui::look::Family::Andika, 14};

QColor commandColour()
{
    return ui::look::palette().color(QPalette::Button);
}

} // namespace

DLGProblemas::DLGProblemas(ui::Screens& screens)
    : Screen(screens, screenName(), u"Gestión de problemas"_s, Width, Height)
    , m_evaluator(u"VBScript"_s)
    , List1(makeList())
    , m_form(*this, {FormLeft, Top}, FormWidth)
{
    makeActions();
    makeWaysOut();
    connectForm();
    markWhatIsUnsaved();
}

ui::ListBox* DLGProblemas::makeList()
{
    auto* list = add(new ui::ListBox(canvas(), ui::ListBox::Start::Flush), u"List1"_s,
        {Margin, ListTop, ListWidth, ListBottom - ListTop}, ListFont);
    list->setAccessibleName(u"Problemas disponibles"_s);
    label(u"Label4"_s, u"Problemas &disponibles"_s,
        {Margin, Top, ListWidth, TemplateForm::LabelHeight}, ui::look::Instruction, list);
    on(list, &QListWidget::itemSelectionChanged, &DLGProblemas::List1_Click);
    // A click on the entry that is selected already changes no selection.
    on(list, &QListWidget::itemClicked, [this] { List1_Click(); });
    return list;
}

void DLGProblemas::connectForm()
{
    on(m_form.Command1, &QPushButton::clicked, &DLGProblemas::Command1_Click);
    on(m_form.Command2, &QPushButton::clicked, &DLGProblemas::Command2_Click);
    on(m_form.Command3, &QPushButton::clicked, &DLGProblemas::Command3_Click);
    on(m_form.Command4, &QPushButton::clicked, &DLGProblemas::Command4_Click);
    for (QWidget* box : std::initializer_list<QWidget*>{m_form.Text1, m_form.Text2, m_form.Text3})
        restrictKeys(box);
    checkOnLeaving(m_form.Text1, statementFault, &DLGProblemas::Text1_Validate);
    checkOnLeaving(m_form.Text2, answerFault, &DLGProblemas::Text2_Validate);
}

void DLGProblemas::makeActions()
{
    const auto place = [](int column) {
        return ui::TwipRect{
            FormLeft + column * (CommandWidth + Gap), ActionsTop, CommandWidth, CommandHeight};
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
    const ui::TwipRect right{
        Width - Margin - CommandWidth, WayOutTop, CommandWidth, WayOutHeight};
    const ui::TwipRect left{
        right.left - Gap - CommandWidth, WayOutTop, CommandWidth, WayOutHeight};
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
        QString reason = fault(m_form.fields());
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
        {Width - Margin - TemplateForm::FreeWidth, Top, TemplateForm::FreeWidth,
            TemplateForm::LabelHeight});
    m_unsaved->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QPalette colours = m_unsaved->palette();
    colours.setColor(QPalette::WindowText, ui::look::Wrong);
    m_unsaved->setPalette(colours);
    on(m_form.Text1, &QPlainTextEdit::textChanged, &DLGProblemas::showWhetherSaved);
    on(m_form.Text2, &QLineEdit::textChanged, [this] { showWhetherSaved(); });
    on(m_form.Text3, &QLineEdit::textChanged, [this] { showWhetherSaved(); });
    for (QCheckBox* operation : m_form.CHOpera)
        on(operation, &QCheckBox::toggled, [this] { showWhetherSaved(); });
    showWhetherSaved();
}

} // namespace problems
