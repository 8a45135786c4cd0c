#pragma once

#include <QString>

namespace ui {
class HandlerGuard;
}

namespace problems {

/// Asks for the bounds of a datum. Its marker, such as "[2_9]"; empty when cancelled.
QString askDatum(ui::HandlerGuard& owner);

/// Asks for an expression; promptEnd ends what is asked. The marker of its value, such as
/// "{&1*&2}"; empty when cancelled, or refused because it leaves a blank behind an "&".
QString askComputed(ui::HandlerGuard& owner, const QString& promptEnd);

} // namespace problems
