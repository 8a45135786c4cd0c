#pragma once

#include "problems/selection.h"

namespace problems {

/// The operations with which a pupil gets from the numbers of the statement to the answer of
/// a line. What the statement shows worked out is one number to the pupil; \, Mod and the
/// division rounded up, (a+b-1)\b, are divisions. All four when the answer uses a datum that
/// the statement does not show, so that it cannot be told.
OperationMask usedOperations(const QString& line);

} // namespace problems
