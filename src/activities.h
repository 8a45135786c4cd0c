#pragma once

#include "shell/main_menu_screen.h"

#include <vector>

namespace ui {
class Screens;
}

/// The activities of the main menu, in its order.
std::vector<shell::Activity> activities();

/// Makes every screen of the program known; none is made yet. The menu is the main screen.
void addScreens(ui::Screens& screens);
