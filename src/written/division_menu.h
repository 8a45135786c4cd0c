#pragma once

#include "ui/signal_handlers.h"

#include <QObject>

class QMenu;

namespace ui {
class MenuFactory;
}

namespace written {

class LongDivision;

/// The menu of the long division: it has the model follow what is picked, and shows by its marks
/// what the model is set to.
class DivisionMenu : public QObject, private ui::SignalHandlers {
public:
    /// What the screen does when something has been picked.
    struct Callbacks {
        std::function<void()> showExercise;
        std::function<void()> showTypedDividend;
        std::function<void()> showTypedDivisor;
        std::function<void()> leave;
    };

    /// All three must outlive the menu.
    DivisionMenu(ui::HandlerGuard& guard, ui::MenuFactory& menus, LongDivision& model,
        Callbacks callbacks);

private:
    void makeSettings(ui::MenuFactory& menus, QMenu* options);
    void showDigits();

    void MnuOpcDivLis_Click(int Index);
    void MnuOpcDisLis_Click(int Index);
    void MnuOpcDecLis_Click(int Index);
    void MnuOpcRes_Click();
    void MnuOpcFor_Click();
    void IntroduceDividendo();
    void IntroduceDivisor();

    ui::HandlerGuard& m_guard;
    LongDivision& m_model;
    Callbacks m_callbacks;
    ui::MenuList MnuOpcDivLis; ///< digits of the dividend
    ui::MenuList MnuOpcDisLis; ///< digits of the divisor
    ui::MenuList MnuOpcDecLis; ///< decimals of the quotient
    QAction* MnuOpcRes = nullptr; ///< the solution writes the products too
    QAction* MnuOpcFor = nullptr; ///< the quotient must contain a zero
};

} // namespace written
