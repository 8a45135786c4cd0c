#pragma once

#include "shell/activity.h"

#include <vector>

namespace ui {
class ScreenSet;
}

/// The one table of the activities, in the order of the menu.
std::vector<shell::Activity> activities();

/// Makes every screen of the program known; none is made yet. The menu is the main screen; what
/// draws its pictograms ahead must outlive it.
void addScreens(ui::ScreenSet& screens, shell::PictogramsAhead* pictograms = nullptr);
