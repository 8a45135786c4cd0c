#pragma once

#include <QString>

namespace core {

/// An expression as it is said aloud, its signs in words and on one line: "8 + 8" is
/// "8 más 8", "7 x 4 =" is "7 por 4 igual a".
QString aloud(QStringView expression);

} // namespace core
