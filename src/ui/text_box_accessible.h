#pragma once

namespace ui {

/// Makes text boxes known to assistive tools: those that only show something as texts, and none
/// with a selection that the pupil has not made, of which a reader would speak.
void installTextBoxAccessible();

} // namespace ui
