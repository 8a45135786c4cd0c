#pragma once

#include <QString>

namespace written {

class WorkArea;

/// Makes every work area known to assistive tools as a text box of several lines.
void installWorkAreaAccessible();

/// Tells assistive tools that the text differs from before, from a position on.
void tellAccessibleText(WorkArea& area, const QString& before, int from);

/// Tells assistive tools where the caret and the selection are.
void tellAccessibleCaret(WorkArea& area);

} // namespace written
