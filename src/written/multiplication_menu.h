#pragma once

#include "ui/signal_handlers.h"

#include <QObject>

class QMenu;

namespace ui {
class MenuFactory;
}

namespace written {

class LongMultiplication;
enum class TypedFactor;

/// The menu of the long multiplication: it has the model follow what is picked, and shows by its
/// marks and captions what the model is set to.
class MultiplicationMenu : public QObject, private ui::SignalHandlers {
public:
    /// What the screen does when something has been picked.
    struct Callbacks {
        std::function<void()> newExercise;
        std::function<void()> showTypedFactors;
        std::function<void()> showVerdict;
        std::function<void()> openDigits; ///< to hand over, when they are chosen, to chooseDigits
        std::function<void()> leave;
    };

    /// All three must outlive the menu.
    MultiplicationMenu(ui::HandlerGuard& guard, ui::MenuFactory& menus, LongMultiplication& model,
        Callbacks callbacks);

    /// These digits alone may stand in the second factor from now on; none chosen means any.
    void chooseDigits(const QString& digits);

private:
    void makeSettings(ui::MenuFactory& menus, QMenu* options);

    void MnuOpcCi1Lis_Click(int Index);
    void MnuOpcCi2Lis_Click(int Index);
    void MnuOpcSelLis_Click(int Index);
    void MnuOpcOcu_Click();
    void MnuOpcIn1_Click();
    void MnuOpcIn2_Click();

    void showChoiceOfDigits();
    bool acceptFactor(TypedFactor outcome);

    ui::HandlerGuard& m_guard;
    LongMultiplication& m_model;
    Callbacks m_callbacks;
    ui::MenuList MnuOpcCi1Lis; ///< digits of factor 1
    ui::MenuList MnuOpcCi2Lis; ///< digits of factor 2
    ui::MenuList MnuOpcSelLis; ///< any digit, or chosen ones
    QAction* MnuOpcOcu = nullptr; ///< leaves out the rows of zeros
};

} // namespace written
