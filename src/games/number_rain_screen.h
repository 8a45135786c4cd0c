#pragma once

#include "games/number_rain.h"
#include "games/rain_focus.h"
#include "games/rain_scoreboard.h"
#include "ui/screen.h"

namespace games {

class NightSky;
class RainField;

/// Number rain: shoot the falling numbers that obey the rule of the phase.
class Form5 : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("Form5"); }

    explicit Form5(ui::Screens& screens);

    QString spokenExercise() const override { return m_model.instruction(); }

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeMenu();
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
    void showNumber(int slot, bool launched);
    void giveFocus(const RainStep& step);
    void tell(const RainEvent& event);
    void tellLives();
    ui::KeyResult CbNave_KeyDown(int KeyCode) const;

    NumberRain m_model;
    NightSky* m_sky; ///< behind everything
    RainField* m_field; ///< the falling numbers
    RainScoreboard m_scoreboard;
    RainFocus m_focus;
    ui::MenuList MnuOpcMod; ///< the difficulties
    ui::Button* CbEmpezar = nullptr; ///< starts the rain
    QTimer* Timer1 = nullptr; ///< the game's clock
    QTimer* Timer2 = nullptr; ///< would start the clock later; nothing starts it: meant
    core::Int16 m_toldLives = RainState::FullLives; ///< as last said aloud
};

} // namespace games
