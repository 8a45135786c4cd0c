#include "problems/bank_editor_screen.h"

#include "core/clock.h"
#include "core/defect.h"
#include "problems/bank.h"
#include "problems/marker_prompts.h"
#include "ui/leave_check.h"
#include "ui/list_box.h"
#include "ui/screens.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

// In twips: the list at the left, what is edited of its entry at the right.
constexpr double Width = 13800;
constexpr double Margin = 240;
constexpr double Top = 120;
constexpr double ListWidth = 4980;
constexpr double FormLeft = Margin + ListWidth + 360;
constexpr double FormWidth = Width - Margin - FormLeft;
constexpr double ActionsTop = Top + TemplateForm::Height + 240;
constexpr double ActionsBottom = ActionsTop + EditorButtons::ActionHeight;
constexpr double Height = ActionsBottom + EditorButtons::BelowActions;

} // namespace

DLGProblemas::DLGProblemas(ui::Screens& screens)
    : Screen(screens, screenName(), u"Gestión de problemas"_s, Width, Height)
    , m_evaluator(u"VBScript"_s)
    , m_list(*this, {Margin, Top, ListWidth, ActionsBottom - Top})
    , m_form(*this, {FormLeft, Top}, FormWidth)
    , m_buttons(*this, {FormLeft, ActionsTop}, FormWidth)
{
    connectList();
    connectForm();
    connectButtons();
    markWhatIsUnsaved();
}

void DLGProblemas::connectList()
{
    on(m_list.List1, &QListWidget::itemSelectionChanged, &DLGProblemas::List1_Click);
    // A click on the entry that is selected already changes no selection.
    on(m_list.List1, &QListWidget::itemClicked, [this] { List1_Click(); });
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

void DLGProblemas::connectButtons()
{
    on(m_buttons.CBProbar, &QPushButton::clicked, &DLGProblemas::CBProbar_Click);
    for (int i = 0; i < 3; ++i)
        on(core::at(m_buttons.CBAccion, i), &QPushButton::clicked, &DLGProblemas::CBAccion_Click,
            i);
    on(m_buttons.OKButton, &QPushButton::clicked, &DLGProblemas::OKButton_Click);
    on(m_buttons.CancelButton, &QPushButton::clicked, &DLGProblemas::CancelButton_Click);
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
    (new ui::LeaveCheck(box, check, tell))->exempt(m_buttons.CancelButton);
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

void DLGProblemas::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    if (const auto bank = LeerBanco(screens().bankFolder().toRead()))
        m_model.load(bank->lines);
    m_list.fill(m_model.lines());
    selectEntry(m_model.newEntry());
    m_list.List1->setFocus();
}

void DLGProblemas::Form_Activate()
{
    m_list.scrollToNewEntry();
}

void DLGProblemas::closeRequested()
{
    guarded([this] { CancelButton_Click(); });
}

void DLGProblemas::List1_Click()
{
    const int entry = m_list.selected();
    m_buttons.CBAccion[static_cast<std::size_t>(Action::Delete)]->setEnabled(
        entry != m_model.newEntry());
    if (!m_model.isLine(entry))
        return;
    m_form.show(m_model.show(entry));
    showWhetherSaved();
}

void DLGProblemas::Text1_Validate()
{
    TemplateFields left = m_form.fields();
    markFromStatement(left);
    m_form.showOperations(left);
}

void DLGProblemas::Text2_Validate()
{
    TemplateFields left = m_form.fields();
    markFromAnswer(left);
    m_form.showOperations(left);
}

void DLGProblemas::Command2_Click()
{
    insertComputed(Target::Statement, u". No deje espacios tras el signo &."_s);
}

void DLGProblemas::Command4_Click()
{
    insertComputed(Target::Answer, u":"_s);
}

void DLGProblemas::insertDatum(Target target)
{
    insertMarker(target, askDatum(*this));
}

void DLGProblemas::insertComputed(Target target, const QString& promptEnd)
{
    insertMarker(target, askComputed(*this, promptEnd));
}

void DLGProblemas::insertMarker(Target target, const QString& marker)
{
    if (!marker.isEmpty())
        m_form.insertAtCaret(target, marker);
}

void DLGProblemas::CBProbar_Click()
{
    const TryOut tried = tryOut(m_form.fields(), screens().random(), m_evaluator);
    ui::MessageBox::show(
        *this, tried.text, ui::MessageBox::programTitle(), ui::Icon::None, tried.notes);
}

void DLGProblemas::CBAccion_Click(int Index)
{
    switch (static_cast<Action>(Index)) {
    case Action::Store:
        storeEntry();
        break;
    case Action::Empty:
        m_form.empty();
        break;
    case Action::Delete:
        deleteEntry();
        break;
    }
}

void DLGProblemas::storeEntry()
{
    const TemplateFields stored = m_form.fields();
    const QString refusal = BankEditor::refusal(stored);
    if (!refusal.isEmpty()) {
        ui::MessageBox::show(*this, refusal);
        return;
    }
    if (m_list.selected() == BankEditor::NoEntry)
        selectEntry(0); // shows the problem that is about to be replaced
    const int entry = m_model.store(m_list.selected(), stored);
    m_list.write(entry, m_model.line(entry));
    selectEntry(m_model.newEntry());
    showWhetherSaved();
    m_form.Text1->setFocus();
}

void DLGProblemas::deleteEntry()
{
    const int entry = m_list.selected();
    if (!m_model.isLine(entry))
        return;
    m_list.remove(entry);
    m_model.remove(entry);
    showWhetherSaved();
}

void DLGProblemas::OKButton_Click()
{
    GuardarBanco(screens().bankFolder().toSave(), m_model.lines());
    closeDialog();
}

void DLGProblemas::CancelButton_Click()
{
    closeDialog();
}

void DLGProblemas::closeDialog()
{
    const auto closed = onClosed;
    unload();
    if (closed)
        closed();
}

void DLGProblemas::selectEntry(int entry)
{
    m_list.select(entry);
    List1_Click();
}

void DLGProblemas::showWhetherSaved()
{
    m_unsaved->setVisible(m_model.isUnsaved(m_form.fields()));
}

} // namespace problems
