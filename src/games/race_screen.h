#pragma once

#include "games/race.h"
#include "games/race_course.h"
#include "games/race_keypad.h"
#include "games/race_panel.h"
#include "games/race_scene.h"
#include "ui/screen.h"

#include <array>

namespace games {

/// The big race: every operation solved drives the pupil's car a step further, against a
/// timed rival.
class FrmCarrera : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("FrmCarrera"); }

    explicit FrmCarrera(ui::Screens& screens);

    QString spokenExercise() const override;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload() override;

private:
    void connectPanel();
    void makeCommands();
    void makeTimers();

    ui::KeyResult Form_KeyDown(int KeyCode);
    void Command1_Click(int Index);
    ui::KeyResult TBResultado_KeyPress(QChar character);
    ui::KeyResult Text2_KeyPress(int Index, QChar character);
    void Timer1_Timer();
    void Timer2_Timer();

    void PreparaCarrera();
    void NuevaOperacion();
    void chooseOptions();
    QImage carPicture(core::Int16 position) const;
    void showVerdict();
    void showWrongAnswer();
    void showRightAnswer();
    void endRace(const QString& text);
    void stopTimers();
    void showTime();
    void focusNoButton();

    Race m_race;
    RaceCourse m_course;
    RaceOptions m_options; ///< as they were chosen last
    PictureNames NombresImagen; ///< the files of the cars, by position
    RaceScene* m_scene; ///< road, cars, landscape, podium
    RacePanel m_panel;
    RaceKeypad m_keypad;
    std::array<ui::Button*, 2> Command1{}; ///< a new race: with new options, with the same
    QTimer* Timer1 = nullptr; ///< the race clock, a tick a second
    QTimer* Timer2 = nullptr; ///< the rival's clock, a tick a step
};

} // namespace games
