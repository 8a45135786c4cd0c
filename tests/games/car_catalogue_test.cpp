#include "core/defect.h"
#include "games/car_catalogue.h"

#include "core/errors.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class CarCatalogueTest : public QObject {
    Q_OBJECT

private slots:
    void carsHaveTheirCaptionsAndPictures_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("picture");
        QTest::newRow("0") << 0 << u"Swift rojo"_s << u"01 _ Swift rojo.jpg"_s;
        QTest::newRow("1") << 1 << u"Coche blanco"_s << u"02 _ Blanco.jpg"_s;
        QTest::newRow("2") << 2 << u"Coche azul"_s << u"03 _ Azul.jpg"_s;
        QTest::newRow("3") << 3 << u"Furgoneta blanca"_s << u"04 _ Furgoneta blanca.jpg"_s;
        QTest::newRow("4") << 4 << u"Furgoneta negra"_s << u"05 _ Furgoneta negra.jpg"_s;
        QTest::newRow("5") << 5 << u"Todo-terreno rojo"_s << u"06 _ Todoterrenorojo.jpg"_s;
        QTest::newRow("6") << 6 << u"Skoda octavia amarillo"_s
                           << u"07 _ Skoda octavia amarillo.jpg"_s;
        QTest::newRow("7") << 7 << u"Alfa romeo"_s << u"08 _ Alfa romeo.jpg"_s;
        QTest::newRow("8") << 8 << u"Coche blanco tunning"_s << u"09 _ Blancotunning.jpg"_s;
        QTest::newRow("9") << 9 << u"Fórmula 1"_s << u"10 _ Formula 1.jpg"_s;
    }
    void carsHaveTheirCaptionsAndPictures()
    {
        QFETCH(int, position);
        const games::Car& car = core::at(games::carCatalogue(), position);
        QTEST(car.caption, "caption");
        QTEST(car.picture, "picture");
        QTEST(games::pictureName(games::pictureNames(), position), "picture");
    }

    void thereAreFourRaceTypes()
    {
        const std::array<QString, 4> expected{u"Multiplicaciones"_s, u"Divisiones"_s,
            u"Combinaciones x+-"_s, u"Combinaciones /+-"_s};
        QCOMPARE(games::raceTypes(), expected);
    }

    void picturePositionsBehindTheCatalogueStayEmpty()
    {
        const games::PictureNames names = games::pictureNames();
        QCOMPARE(names.size(), 19u);
        for (std::size_t i = 10; i < names.size(); ++i)
            QCOMPARE(names.at(i), QString());
    }

    void noCarIsAClearError_data()
    {
        QTest::addColumn<int>("position");
        QTest::newRow("nothing chosen") << -1;
        QTest::newRow("empty name") << 10;
        QTest::newRow("behind the names") << 19;
    }
    void noCarIsAClearError()
    {
        QFETCH(int, position);
        QVERIFY_THROWS_EXCEPTION(
            core::Error, games::pictureName(games::pictureNames(), position));
    }
};

QTEST_GUILESS_MAIN(CarCatalogueTest)
#include "car_catalogue_test.moc"
