#include "core/aloud.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace core {

QString aloud(QStringView expression)
{
    static const QHash<QChar, QString> words{
        {u'+', u"más"_s},
        {u'-', u"menos"_s},
        {u'x', u"por"_s},
        {u'X', u"por"_s},
        {u'×', u"por"_s},
        {u'·', u"por"_s},
        {u':', u"entre"_s},
        {u'÷', u"entre"_s},
        {u'/', u"entre"_s},
        {u'=', u"igual a"_s},
        {u'(', u"abre paréntesis"_s},
        {u')', u"cierra paréntesis"_s},
    };
    QString said;
    for (const QChar sign : expression) {
        const auto word = words.constFind(sign);
        said += word == words.cend() ? QString(sign) : u' ' + *word + u' ';
    }
    return said.simplified();
}

} // namespace core
