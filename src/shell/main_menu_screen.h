#pragma once

#include "ui/screen.h"

#include <span>
#include <vector>

namespace shell {

/// An activity of the main menu: its button's caption, the screen it opens, and how.
struct Activity {
    enum class Shown { Modal, Modeless };

    QString caption;
    QString screen;
    Shown shown = Shown::Modal;
};

/// The main menu: one button an activity, and "&Salir", which ends the program.
class Form1 : public ui::Screen {
public:
    static QString screenName();

    Form1(ui::Screens& screens, std::span<const Activity> activities);

protected:
    void Form_Load() override;
    void Form_QueryUnload() override;

private:
    void Command1_Click(int Index);
    void MnuAce_Click();
    void exitProgram();

    std::vector<Activity> m_activities;
    std::vector<ui::Button*> Command1; ///< the last one is "&Salir"
};

} // namespace shell
