#include "support/program_bench.h"
#include "support/screen_bench.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

/// Which controls have a font of their own, and which font that is; all others are written in
/// the program's.
class FontsTest : public QObject {
    Q_OBJECT

private slots:
    void controlsHaveTheirFonts_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QStringList>("controls");
        QTest::addColumn<Family>("family");
        const auto row = [](const QString& screen, const char* what, Family family,
                             const QStringList& controls) {
            QTest::addRow("%s, %s", qPrintable(screen), what) << screen << controls << family;
        };
        row(u"Form1"_s, "buttons", Family::Arial, elements(u"Command1"_s, 12));
        row(u"Form2"_s, "table", Family::CourierNew, {u"TbTabla1"_s, u"TbTabla2"_s});
        row(u"Form3"_s, "figures", Family::CourierNew,
            elements(u"TbFactor"_s, 2) + elements(u"TbParcial"_s, 2)
                + QStringList{u"LabX"_s, u"TBResultado"_s});
        row(u"Form4"_s, "texts and factors", Family::Arial,
            {u"TbMensaje"_s, u"TbSuma"_s, u"Text3(0)"_s, u"Text3(2)"_s});
        row(u"Form5"_s, "texts", Family::CourierNew,
            elements(u"Text2"_s, 2) + QStringList{u"Text1"_s});
        row(u"Form6"_s, "figures", Family::CourierNew, {u"Text1"_s, u"Text2"_s, u"Text3"_s});
        row(u"Form8"_s, "operation", Family::CourierNew,
            elements(u"TbDatos"_s, 5) + QStringList{u"LBOperación"_s, u"LBTiempo"_s});
        row(u"Form8"_s, "button", Family::Verdana, {u"Command1"_s});
        row(u"FRMCombi"_s, "expression", Family::CourierNew, {u"TBOperación"_s, u"TBCálculos"_s});
        row(u"FrmMultHuecos"_s, "operation", Family::CourierNew,
            elements(u"TbTermin"_s, 3) + elements(u"TbSignos"_s, 2));
        row(u"FrmMultidivi"_s, "number", Family::CourierNew, {u"Text2"_s});
    }
    void controlsHaveTheirFonts()
    {
        QFETCH(QString, screen);
        QFETCH(QStringList, controls);
        QFETCH(Family, family);
        ProgramBench program;
        const ui::Screen& loaded = program.screens.load(screen);
        const QStringList expected = ui::look::scaled({family}, 1).families();
        QVERIFY(expected != ui::look::scaled({}, 1).families());
        for (const QString& control : controls)
            QVERIFY2(ScreenBench::find<QWidget>(loaded, control).font().families() == expected,
                qPrintable(control));
    }

private:
    static QStringList elements(const QString& array, int count)
    {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names << u"%1(%2)"_s.arg(array).arg(i);
        return names;
    }
};

PIZARRIN_SCREEN_TEST_MAIN(FontsTest)
#include "fonts_test.moc"
