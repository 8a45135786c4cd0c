#include "ui/picture.h"

#include "core/errors.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// The same JPEG, but its header says 60000 × 60000 pixels.
QByteArray enlarged(QByteArray jpeg)
{
    const qsizetype frame = jpeg.indexOf("\xFF\xC0");
    const QByteArray size("\xEA\x60\xEA\x60", 4);
    return jpeg.replace(frame + 5, size.size(), size);
}

} // namespace

class PictureTest : public QObject {
    Q_OBJECT

private slots:
    void loadsTheFileOfTheFolder()
    {
        const QImage picture =
            ui::loadPicture(QString::fromUtf8(PIZARRIN_RESOURCES), u"01 _ Swift rojo.jpg"_s);
        QCOMPARE(picture.size(), QSize(800, 340));
    }

    void whatIsNoWholePictureIsToldByName_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QFile file(QString::fromUtf8(PIZARRIN_RESOURCES) + u"/01 _ Swift rojo.jpg"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        QTest::newRow("missing") << QByteArray() << u"el archivo no existe"_s;
        QTest::newRow("text") << QByteArray("no picture") << u"el archivo está dañado"_s;
        QTest::newRow("head only") << whole.left(100) << u"el archivo está dañado"_s;
        QTest::newRow("breaks off")
            << whole.left(whole.size() / 2) << u"el archivo está dañado"_s;
        QTest::newRow("breaks off behind a thumbnail's end") << whole.left(20) + "\xFF\xD9"
                + whole.mid(20, whole.size() / 2) << u"el archivo está dañado"_s;
        QTest::newRow("gigantic") << enlarged(whole) << u"el archivo está dañado"_s;
    }
    void whatIsNoWholePictureIsToldByName()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        QTemporaryDir folder;
        if (!content.isEmpty()) {
            QFile file(folder.filePath(u"05 _ Furgoneta negra.jpg"_s));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        try {
            ui::loadPicture(folder.path(), u"05 _ Furgoneta negra.jpg"_s);
            QFAIL("no error");
        } catch (const core::FileError& error) {
            QVERIFY(error.text().contains(u"«05 _ Furgoneta negra.jpg»"_s));
            QVERIFY2(error.text().contains(reason), qPrintable(error.text()));
            QVERIFY(error.text().contains(QDir::toNativeSeparators(folder.path())));
        }
    }
};

QTEST_MAIN(PictureTest)
#include "picture_test.moc"
