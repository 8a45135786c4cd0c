#pragma once

#include <QStringList>

namespace written {

// Words for what a screen reader has no words for, or the wrong ones.

/// The place of a digit, 0 at the units: "unidades", "decenas" and so on.
QString spokenPlace(int place);

/// "1, 2 y 3".
QString spokenList(const QStringList& items);

} // namespace written
