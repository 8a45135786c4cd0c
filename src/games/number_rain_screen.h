#pragma once

#include "games/number_rain.h"
#include "ui/screen.h"

#include <chrono>
#include <optional>

namespace games {

class NightSky;
class RainField;
class TokenRow;

/// Number rain: shoot the falling numbers that obey the rule of the phase.
class Form5 : public ui::Screen {
public:
    static QString screenName();

    explicit Form5(ui::Screens& screens);

    QString spokenExercise() const override { return m_model.instruction(); }

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent* event) override;

    /// The computer's beep.
    virtual void beep();

private:
    void makeMenu();
    void makeScoreboard();
    void makeStart();
    void makeClocks();
    void makeNumber(int slot);

    void MnuOpcMod_Click(int Index);
    void CbEmpezar_Click();
    void CbNave_Click(int Index);
    void Timer1_Timer();
    void Timer2_Timer();

    void play(RainStep step);
    bool ask(const RainBox& box);
    void show(const RainStep& step);
    void showScore();
    void showNumber(int slot, bool launched);
    void giveFocus(const RainStep& step);
    void focusNew(int slot);
    void leaveWithFocus(QWidget* control);
    void tell(const RainEvent& event);
    void tellLives();
    ui::KeyResult CbNave_KeyDown(int KeyCode) const;

    NumberRain m_model;
    NightSky* m_sky; ///< behind everything
    RainField* m_field; ///< the falling numbers
    ui::MenuList MnuOpcMod; ///< the difficulties
    QWidget* PbFoco = nullptr; ///< has the focus when no number is to have it; out of sight
    ui::Button* CbEmpezar = nullptr; ///< starts the rain
    std::array<ui::TextBox*, 2> Text2{}; ///< the points of the phase; the lives left
    ui::TextBox* Text1 = nullptr; ///< the rule of the phase
    TokenRow* m_stars = nullptr; ///< the hits that pass a phase
    TokenRow* m_hearts = nullptr; ///< the lives left
    QTimer* Timer1 = nullptr; ///< the game's clock
    QTimer* Timer2 = nullptr; ///< would start the clock later; nothing starts it: meant
    core::Int16 m_toldLives = RainState::FullLives; ///< as last said aloud
    std::optional<std::chrono::milliseconds> m_focusTaken; ///< when, from another number
};

} // namespace games
