#pragma once

#include "problems/bank_editor.h"
#include "problems/bank_list.h"
#include "problems/editor_buttons.h"
#include "problems/expression.h"
#include "problems/template_form.h"
#include "ui/screen.h"

namespace problems {

/// The editor of the problem bank: browse, add, change, delete and try out its templates.
class DLGProblemas : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("DLGProblemas"); }

    /// Loading it throws core::FileError when there is a bank that cannot be read, so that
    /// it is never saved over.
    explicit DLGProblemas(ui::Screens& screens);

    /// Called when "Aceptar", "&Cancelar" or the close box has closed the editor; its opener
    /// sets it.
    std::function<void()> onClosed;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void closeRequested() override;

private:
    using Target = TemplateForm::Target;
    enum class Action { Store, Empty, Delete }; ///< in the order of the buttons

    void connectList();
    void connectForm();
    void connectButtons();
    /// When the box is left: the fault is told first, then the handler runs in any case.
    void checkOnLeaving(
        QWidget* box, QString (*fault)(const TemplateFields&), void (DLGProblemas::*validate)());
    void restrictKeys(QWidget* box);
    void markWhatIsUnsaved();

    void List1_Click();
    void Text1_Validate();
    void Text2_Validate();
    void Command1_Click() { insertDatum(Target::Statement); }
    void Command2_Click();
    void Command3_Click() { insertDatum(Target::Answer); }
    void Command4_Click();
    void CBProbar_Click();
    void CBAccion_Click(int Index);
    void OKButton_Click();
    void CancelButton_Click();

    void storeEntry();
    void deleteEntry();
    void insertDatum(Target target);
    void insertComputed(Target target, const QString& promptEnd);
    void insertMarker(Target target, const QString& marker);
    void selectEntry(int entry);
    void showWhetherSaved();
    void closeDialog();

    BankEditor m_model;
    ExpressionEvaluator m_evaluator;
    BankList m_list;
    TemplateForm m_form;
    EditorButtons m_buttons;
    QLabel* m_unsaved = nullptr; ///< shown while the boxes hold what "&Guardar" has not stored
};

} // namespace problems
