#pragma once

#include "ui/placement.h"
#include "ui/signal_handlers.h"

#include <QObject>

#include <array>

class QFrame;

namespace ui {
class Button;
class ControlFactory;
class TextBox;
} // namespace ui

namespace games {

/// The keypad on the screen, which types into the answer, and the button that shows it.
class RaceKeypad : public QObject, private ui::SignalHandlers {
public:
    /// What it has the screen do.
    struct Callbacks {
        std::function<void()> enter; ///< as the key Enter in the answer
        std::function<void()> letGoOfFocus; ///< before the button that was pressed hides
    };

    /// Makes the frame with its key 0 and, at the same upper right corner, the button that shows
    /// it. The keypad is hidden at first. All but the callbacks must outlive it.
    RaceKeypad(ui::HandlerGuard& guard, ui::ControlFactory& factory, QPointF upperRight,
        ui::TextBox& answer, Callbacks callbacks);

    /// Makes the keys 1 to 12.
    void CreaTeclado();

private:
    void CBConmutar_Click();
    void CBCalcu_Click(int Index);

    ui::ControlFactory& m_factory;
    ui::TextBox& m_answer;
    Callbacks m_callbacks;
    QFrame* PBTeclado; ///< holds the keys
    std::array<ui::Button*, 13> CBCalcu{}; ///< 0 hides the keypad, the others are its keys
    ui::Button* CBConmutar; ///< shows the keypad and hides itself
};

} // namespace games
