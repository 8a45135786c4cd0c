#include "pictures.h"

#include <QHash>

using namespace Qt::StringLiterals;

gallery::Pictures gallery::picturesOf(const QString& screen)
{
    static const QHash<QString, Pictures> table{
        {u"Form2"_s, addMultiplicationTables},
        {u"Form3"_s, addLongMultiplication},
        {u"Form4"_s, addRepeatedSum},
        {u"Form5"_s, addNumberRain},
        {u"Form6"_s, addLongDivision},
        {u"Form8"_s, addQuickTables},
        {u"FRMCombi"_s, addCombinedOperations},
        {u"FrmCarrera"_s, addRace},
        {u"FrmMultHuecos"_s, addFillTheGap},
        {u"FrmMultidivi"_s, addMultiplesDivisors},
        {u"FormProblemas"_s, addProblems},
    };
    return table.value(screen);
}
