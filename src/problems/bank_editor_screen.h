#pragma once

#include "problems/bank_editor.h"
#include "problems/expression.h"
#include "ui/screen.h"

class QCheckBox;

namespace ui {
class ListBox;
}

namespace problems {

/// The editor of the problem bank: browse, add, change, delete and try out its templates.
class DLGProblemas : public ui::Screen {
public:
    static QString screenName();

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
    enum class Target { Statement, Answer };
    enum class Action { Store, Empty, Delete };

    void makeList();
    void makeStatement();
    void makeAnswer();
    ui::Button* insertCommand(
        int number, const QString& caption, const QString& target, const ui::TwipRect& place);
    void makeUnit();
    void makeOperations();
    void makeActions();
    void makeWaysOut();
    /// When the box is left: the fault is told first, then the handler runs in any case.
    void checkOnLeaving(
        QWidget* box, QString (*fault)(const TemplateFields&), void (DLGProblemas::*validate)());
    void restrictKeys(QWidget* box);
    void markWhatIsUnsaved();
    void addToolTips();

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
    void insertAtCaret(Target target, const QString& marker);
    void selectEntry(int entry);
    int selectedEntry() const;
    TemplateFields fields() const;
    void showOperations(const TemplateFields& shown);
    void showWhetherSaved();
    void closeDialog();

    BankEditor m_model;
    ExpressionEvaluator m_evaluator;
    ui::ListBox* List1 = nullptr; ///< the lines of the bank, then the entry for a new one
    ui::Memo* Text1 = nullptr; ///< the statement
    ui::TextBox* Text2 = nullptr; ///< the answer
    ui::TextBox* Text3 = nullptr; ///< the unit of the answer
    std::array<QCheckBox*, 4> CHOpera{}; ///< the operations that the problem exercises
    std::array<ui::Button*, 3> CBAccion{}; ///< in the order of Action
    ui::Button* CancelButton = nullptr; ///< closes without saving
    QLabel* m_unsaved = nullptr; ///< shown while the boxes hold what "&Guardar" has not stored
};

} // namespace problems
