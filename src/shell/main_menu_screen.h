#pragma once

#include "shell/activity.h"
#include "ui/screen.h"

#include <vector>

class QScreen;

namespace shell {

/// The main menu: one button an activity, and "&Salir", which ends the program.
class Form1 : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("Form1"); }
    /// The side of the pictograms, in a display's own pixels, when the menu comes up on it.
    static int pictogramSide(const QScreen& display);

    /// What draws its pictograms ahead must outlive the menu.
    Form1(ui::Screens& screens, std::vector<Activity> activities,
        PictogramsAhead* pictograms = nullptr);

protected:
    void Form_Load() override;
    void Form_QueryUnload() override;

private:
    void Command1_Click(int Index);
    void MnuAce_Click();
    void exitProgram();

    std::vector<Activity> m_activities;
    PictogramsAhead* m_pictograms;
    std::vector<ui::Button*> Command1; ///< the last one is "&Salir"
};

} // namespace shell
