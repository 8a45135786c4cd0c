#pragma once

namespace ui {

/// Makes text boxes that only show something known to assistive tools as texts: what is
/// highlighted in them is nothing that a pupil has selected.
void installTextBoxAccessible();

} // namespace ui
