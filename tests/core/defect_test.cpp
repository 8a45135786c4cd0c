#include "core/defect.h"

#include <QtTest>

#include <array>

using core::SourceLine;

class DefectTest : public QObject {
    Q_OBJECT

private slots:
    void aLineOfTheSourcesIsToldFromTheFolderSrcOn()
    {
        QCOMPARE((SourceLine{"/home/src/a/src/ui/keys.cpp", 12}).text(), "src/ui/keys.cpp:12");
        QCOMPARE((SourceLine{"other/keys.cpp", 3}).text(), "other/keys.cpp:3");
    }

    void aDefectKnowsTheLineThatThrewIt()
    {
        const int line = __LINE__ + 2;
        try {
            throw core::Defect("impossible");
        } catch (const core::Defect& defect) {
            QCOMPARE(defect.where().line, line);
            QVERIFY(QByteArray(defect.where().file).endsWith("defect_test.cpp"));
            QCOMPARE(defect.what(), "impossible");
        }
    }

    void anElementOutsideIsADefectOfTheLineThatAskedForIt_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("below") << -1;
        QTest::newRow("behind") << 3;
    }
    void anElementOutsideIsADefectOfTheLineThatAskedForIt()
    {
        QFETCH(int, index);
        const std::array values{1, 2, 4};
        const int line = __LINE__ + 2;
        try {
            core::at(values, index);
            QFAIL("there is no such element");
        } catch (const core::Defect& defect) {
            QCOMPARE(defect.where().line, line);
            QCOMPARE(defect.what(), "no element " + std::to_string(index));
        }
    }

    void anElementInsideCanBeReadAndChanged()
    {
        QList<int> values{1, 2, 4};
        core::at(values, 2) = 7;
        QCOMPARE(core::at(values, std::size_t(2)), 7);
        QCOMPARE(core::at(values, 0), 1);
    }
};

QTEST_GUILESS_MAIN(DefectTest)
#include "defect_test.moc"
