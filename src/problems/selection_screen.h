#pragma once

#include "core/int16.h"
#include "problems/selection.h"
#include "ui/screen.h"

#include <array>
#include <optional>

class QCheckBox;
class QGroupBox;
class QRadioButton;

namespace problems {

/// The dialog that restricts which problems are drawn, by the operations they exercise.
class DLGSelProb : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("DLGSelProb"); }

    explicit DLGSelProb(ui::Screens& screens);

    /// What FormProblemas::CargaDatos takes.
    struct Choice {
        core::Int16 Seleccion; ///< a ProblemSelection::Option
        OperationMask MaskOpera;
    };
    /// Empty unless "Aceptar" has closed the dialog.
    const std::optional<Choice>& choice() const { return m_choice; }

protected:
    void Form_Load() override;

private:
    void makeOptions();
    void makeChecks();
    void makeWaysOut();
    QGroupBox* frame(const QString& name, const QString& caption, const ui::TwipRect& place);

    void Option1_Click() { ContarDisponibles(); }
    void Check1_Click() { ContarDisponibles(); }
    void OKButton_Click();
    void CancelButton_Click() { unload(); }

    void ContarDisponibles();
    ProblemSelection::Option option() const;
    OperationMask checkedOperations() const;

    ProblemSelection m_model;
    std::optional<Choice> m_choice;
    std::array<QRadioButton*, 3> Option1{}; ///< in the order of ProblemSelection::Option
    std::array<QCheckBox*, 4> Check1{}; ///< the operations
    ui::TextBox* Text1 = nullptr; ///< how many statements the choice leaves
    ui::Button* OKButton = nullptr; ///< accepts the choice, where it leaves any
};

} // namespace problems
