#pragma once

namespace ui {

/// Gives the program the contrast that the desktop asks for, now or as soon as it has answered,
/// and again when that is changed: the one setting of the desktop that is followed. Nothing
/// waits for the answer.
void followDesktopContrast();

} // namespace ui
