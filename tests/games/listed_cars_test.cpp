#include "games/car_catalogue.h"
#include "games/listed_cars.h"

#include <QPainter>
#include <QtTest>

using namespace Qt::StringLiterals;

class ListedCarsTest : public QObject {
    Q_OBJECT

private slots:
    void everyFileHasItsOwnPicture()
    {
        const QIcon first = read({u"01 _ Swift rojo.jpg"_s}).first();
        const QIcon last = read({u"10 _ Formula 1.jpg"_s}).first();
        const QList<QIcon> both = read({u"01 _ Swift rojo.jpg"_s, u"10 _ Formula 1.jpg"_s});
        QCOMPARE(both.size(), 2);
        QCOMPARE(shown(both.first()), shown(first));
        QCOMPARE(shown(both.last()), shown(last));
        QVERIFY(shown(first) != shown(last));
    }

    void everyCarFillsItsPlaceUpToFactorFour_data()
    {
        QTest::addColumn<QString>("file");
        for (const games::Car& car : games::carCatalogue())
            QTest::newRow(qPrintable(car.caption)) << car.picture;
    }
    void everyCarFillsItsPlaceUpToFactorFour()
    {
        QFETCH(QString, file);
        const QIcon icon = read({file}).first();
        for (const int factor : {1, 4}) {
            const QSize place = games::ListedCar * factor;
            const QSize room = icon.actualSize(place);
            QVERIFY(room.width() == place.width() || room.height() == place.height());
            QCOMPARE(icon.pixmap(place).size(), room);
        }
    }

    void aChosenCarIsNotTinted()
    {
        const QIcon icon = read({u"03 _ Azul.jpg"_s}).first();
        QCOMPARE(shown(icon, QIcon::Selected), shown(icon));
    }

    void whatCannotBeReadIsEmpty()
    {
        const QList<QIcon> icons = read({u"no hay.jpg"_s, u"01 _ Swift rojo.jpg"_s});
        QVERIFY(icons.first().isNull());
        QVERIFY(!icons.last().isNull());
    }

    void aCopyIsTheSame()
    {
        const QIcon icon = read({u"03 _ Azul.jpg"_s}).first();
        QIcon copy = icon;
        copy.detach();
        QCOMPARE(shown(copy), shown(icon));
    }

private:
    static QList<QIcon> read(const QStringList& files)
    {
        return games::listedCars(QString::fromUtf8(PIZARRIN_RESOURCES), files);
    }

    /// As it is painted into a line of a list.
    static QImage shown(const QIcon& icon, QIcon::Mode mode = QIcon::Normal)
    {
        QImage line(games::ListedCar, QImage::Format_RGB32);
        line.fill(Qt::white);
        QPainter painter(&line);
        icon.paint(&painter, line.rect(), Qt::AlignCenter, mode);
        return line;
    }
};

QTEST_MAIN(ListedCarsTest)
#include "listed_cars_test.moc"
