#include "written/spoken.h"

#include "core/defect.h"

#include <array>

using namespace Qt::StringLiterals;

namespace written {

QString spokenPlace(int place)
{
    static const std::array Names{u"unidades"_s, u"decenas"_s, u"centenas"_s,
        u"unidades de millar"_s, u"decenas de millar"_s, u"centenas de millar"_s,
        u"unidades de millón"_s, u"decenas de millón"_s, u"centenas de millón"_s};
    if (place >= 0 && place < static_cast<int>(Names.size()))
        return core::at(Names, place);
    return u"lugar %1 desde la derecha"_s.arg(place + 1);
}

QString spokenList(const QStringList& items)
{
    if (items.size() < 2)
        return items.join(QString());
    return items.sliced(0, items.size() - 1).join(u", "_s) + u" y "_s + items.last();
}

} // namespace written
