#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace problems {

/// Text in the Windows-1252 code page. The five bytes that it does not define (81, 8D, 8F,
/// 90 and 9D) stand for the control characters of the same number, both ways.
QString fromWindows1252(QByteArrayView bytes);

/// Appends the bytes of text. Stops at the first character that the code page does not
/// have and returns its position in text; nothing when all of them fit.
std::optional<qsizetype> appendWindows1252(QByteArray& bytes, QStringView text);

} // namespace problems
