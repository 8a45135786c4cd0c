#include "games/car_picture.h"

#include "games/car_catalogue.h"
#include "games/race_track.h"
#include "ui/picture.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class CarPictureTest : public QObject {
    Q_OBJECT

private slots:
    void everyCarHasAPictureThatIsLargeEnough_data()
    {
        QTest::addColumn<QString>("file");
        for (const games::Car& car : games::carCatalogue())
            QTest::newRow(qPrintable(car.caption)) << car.picture;
    }
    void everyCarHasAPictureThatIsLargeEnough()
    {
        QFETCH(QString, file);
        const QImage picture = ui::loadPicture(QString::fromUtf8(PIZARRIN_RESOURCES), file);
        QVERIFY(!picture.isNull());
        // The track shows it 1000 twips high: crisp up to factor 4.
        QVERIFY2(picture.height() >= 4 * 1000 / 15, qPrintable(file));
        QVERIFY2(picture.width() >= 640, qPrintable(file));
        // All of the car is on the track at the start.
        const double width = 1000.0 * picture.width() / picture.height();
        QVERIFY(9500 + width <= games::RaceTrack::Width);
    }

    void everyCarStandsOnTheRoad_data() { everyCarHasAPictureThatIsLargeEnough_data(); }
    void everyCarStandsOnTheRoad()
    {
        QFETCH(QString, file);
        const QImage car =
            games::withoutRoad(ui::loadPicture(QString::fromUtf8(PIZARRIN_RESOURCES), file));
        for (int x = 0; x < car.width(); ++x) {
            QCOMPARE(qAlpha(car.pixel(x, 0)), 0);
            QCOMPARE(qAlpha(car.pixel(x, car.height() - 1)), 0);
        }
        int opaque = 0;
        for (int y = 0; y < car.height(); ++y) {
            for (int x = 0; x < car.width(); ++x)
                opaque += qAlpha(car.pixel(x, y)) == 255 ? 1 : 0;
        }
        const double share = static_cast<double>(opaque) / (car.width() * car.height());
        QVERIFY2(share > 0.15 && share < 0.85, qPrintable(QString::number(share)));
    }

    void onlyRoadThatIsJoinedToTheEdgeGoes()
    {
        QImage picture(9, 9, QImage::Format_RGB32);
        picture.fill(games::LaneGrey);
        for (int y = 2; y <= 6; ++y) {
            for (int x = 2; x <= 6; ++x)
                picture.setPixel(x, y, qRgb(200, 0, 0));
        }
        picture.setPixel(4, 4, games::LaneGrey); // a grey window in the car
        picture.setPixel(0, 8, qRgb(0x5C + 9, 0x63 - 9, 0x6B)); // as a JPEG gives grey back
        picture.setPixel(8, 8, qRgb(0x5C + 11, 0x63, 0x6B));
        const QImage car = games::withoutRoad(picture);
        QCOMPARE(car.pixel(0, 0), games::LaneGrey & 0x00FFFFFF);
        QCOMPARE(qAlpha(car.pixel(1, 4)), 0);
        QCOMPARE(qAlpha(car.pixel(0, 8)), 0);
        QCOMPARE(car.pixel(2, 2), qRgb(200, 0, 0));
        QCOMPARE(car.pixel(4, 4), games::LaneGrey);
        QCOMPARE(qAlpha(car.pixel(8, 8)), 255);
    }
};

QTEST_MAIN(CarPictureTest)
#include "car_picture_test.moc"
