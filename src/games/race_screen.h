#pragma once

#include "games/race.h"
#include "ui/screen.h"

#include <array>

class QFrame;

namespace ui {
class Glide;
}

namespace games {

class RaceTrack;
class RaceVerge;

/// The big race: every operation solved drives the pupil's car a step further, against a
/// timed rival.
class FrmCarrera : public ui::Screen {
public:
    static QString screenName();

    explicit FrmCarrera(ui::Screens& screens);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload() override;

    /// The computer's beep.
    virtual void beep();

private:
    void makeTrack();
    void makeBoxes();
    void makeKeypad();
    void makeCommands();
    void CreaTeclado();

    ui::KeyResult Form_KeyDown(int KeyCode);
    void Command1_Click(int Index);
    void CBCalcu_Click(int Index);
    void CBConmutar_Click();
    ui::KeyResult TBResultado_KeyPress(QChar character);
    ui::KeyResult Text2_KeyPress(int Index, QChar character);
    void Timer1_Timer();
    void Timer2_Timer();

    void PreparaCarrera();
    void NuevaOperacion();
    void chooseOptions();
    QImage carPicture(core::Int16 position) const;
    void putCar(std::size_t index, const QImage& picture);
    void moveCar(std::size_t index, double left);
    void showRightAnswer(Race::Verdict verdict);
    void endRace(const QString& text);
    void stopTimers();
    void showTime();

    Race m_race;
    PictureNames NombresImagen;
    ui::TextBox* TBOperacion = nullptr;
    ui::TextBox* TBResultado = nullptr;
    ui::VerdictBox* Text4 = nullptr;
    std::array<ui::TextBox*, 5> Text2{};
    QFrame* PBTeclado = nullptr;
    std::array<ui::Button*, 13> CBCalcu{};
    ui::Button* CBConmutar = nullptr;
    std::array<ui::Button*, 2> Command1{};
    RaceVerge* m_verge = nullptr;
    RaceTrack* Picture1 = nullptr;
    std::array<QLabel*, 2> Image1{};
    ui::TextBox* m_time = nullptr;
    QTimer* Timer1 = nullptr;
    QTimer* Timer2 = nullptr;
    ui::Glide* m_glide;
};

} // namespace games
