#include "problems/windows1252.h"

#include <algorithm>
#include <array>

namespace problems {

namespace {

// Bytes 80 to 9F; all the others have the number of their character.
constexpr std::array<char16_t, 32> Special{u'\u20AC', 0x81, u'\u201A', u'\u0192', u'\u201E',
    u'\u2026', u'\u2020', u'\u2021', //
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0x8D, u'\u017D', 0x8F, //
    0x90, u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014', //
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', 0x9D, u'\u017E', u'\u0178'};

constexpr unsigned FirstSpecial = 0x80;
constexpr unsigned LastSpecial = 0x9F;

char16_t character(char byte)
{
    const unsigned code = static_cast<unsigned char>(byte);
    const bool isSpecial = code >= FirstSpecial && code <= LastSpecial;
    return isSpecial ? Special[code - FirstSpecial] : static_cast<char16_t>(code);
}

std::optional<char> byte(char16_t c)
{
    if (c < FirstSpecial || (c > LastSpecial && c <= 0xFF))
        return static_cast<char>(c);
    const auto found = std::find(Special.begin(), Special.end(), c);
    if (found == Special.end())
        return std::nullopt;
    return static_cast<char>(FirstSpecial + static_cast<unsigned>(found - Special.begin()));
}

} // namespace

QString fromWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), character);
    return text;
}

std::optional<qsizetype> appendWindows1252(QByteArray& bytes, QStringView text)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        const auto coded = byte(text[at].unicode());
        if (!coded)
            return at;
        bytes.append(*coded);
    }
    return std::nullopt;
}

} // namespace problems
