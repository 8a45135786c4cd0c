#include "gallery.h"
#include "pictures.h"

#include "ui/application.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ui::prepareApplication();
    QApplication application(argc, argv);
    ui::dress();

    const QStringList arguments = QApplication::arguments();
    gallery::Gallery gallery(arguments.value(1, u"pictures"_s),
        QString::fromUtf8(PIZARRIN_RESOURCES), arguments.mid(2));
    gallery::addMenu(gallery);
    gallery::addMultiplicationTables(gallery);
    gallery::addQuickTables(gallery);
    gallery::addRepeatedSum(gallery);
    gallery::addFillTheGap(gallery);
    gallery::addLongMultiplication(gallery);
    gallery::addLongDivision(gallery);
    gallery::addCombinedOperations(gallery);
    gallery::addMultiplesDivisors(gallery);
    gallery::addProblems(gallery);
    gallery::addProblemsEditor(gallery);
    gallery::addNumberRain(gallery);
    gallery::addRace(gallery);
    return 0;
}
