#pragma once

#include "games/number_rain.h"
#include "ui/screen.h"

#include <chrono>
#include <optional>

namespace ui {
class Glide;
}

namespace games {

class NightSky;
class RainDrop;

/// Number rain: shoot the falling numbers that obey the rule of the phase.
class Form5 : public ui::Screen {
public:
    static QString screenName();

    explicit Form5(ui::Screens& screens);

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent* event) override;

    /// The computer's beep.
    virtual void beep();

private:
    void makeMenu();
    void makeScoreboard();
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
    void giveFocus(RainFocus focus, std::optional<int> launched);
    void leaveWithFocus(QWidget* control);
    ui::KeyResult CbNave_KeyDown(int KeyCode) const;

    NumberRain m_model;
    ui::MenuList MnuOpcMod;
    QWidget* PbFoco = nullptr;
    ui::Button* CbEmpezar = nullptr;
    std::array<ui::TextBox*, 2> Text2{};
    ui::TextBox* Text1 = nullptr;
    QTimer* Timer1 = nullptr;
    QTimer* Timer2 = nullptr;
    std::array<RainDrop*, RainState::Slots> CbNave{};
    NightSky* m_sky;
    ui::Glide* m_glide;
    std::optional<std::chrono::milliseconds> m_focusTaken; ///< when, from another number
};

} // namespace games
