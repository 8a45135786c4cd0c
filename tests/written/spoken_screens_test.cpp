#include "support/screen_bench.h"
#include "support/speech.h"
#include "written/combined_operations_screen.h"
#include "written/digit_dialog.h"
#include "written/long_division_screen.h"
#include "written/long_multiplication_screen.h"
#include "written/multiples_divisors_screen.h"
#include "written/work_area.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// A window gets the focus before it is up or behind that, as its desktop will have it.
QStringList inOrder(QStringList told)
{
    told.sort();
    return told;
}

} // namespace

/// What the written operations say to whoever cannot see them. Only a real desktop hands these
/// events on.
class SpokenScreensTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), 60000); // the desktop's bus starts
        listenToSpeech();
    }
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        spoken.clear();
    }
    void cleanup() { bench.reset(); }

    void multiplicationSaysExerciseRowsAndSolution()
    {
        openMultiplication();
        QCOMPARE(inOrder(heard()), (QStringList{u"1234 por 56"_s, u"unidades"_s}));
        bench->click(u"Command1"_s);
        QCOMPARE(
            heard(), (QStringList{u"resultado incorrecto"_s, u"filas equivocadas: 1 y 2"_s}));
        bench->click(u"Command1"_s); // again, though it is the same
        QCOMPARE(heard().size(), 2);
        bench->click(u"Command2(2)"_s);
        QCOMPARE(heard(), {u"Solución: 69104"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(heard(), {u"Resultado correcto "_s});
        appendFactor(4321, 4);
        appendFactor(76, 2);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(heard(), (QStringList{u"4321 por 76"_s, u"unidades"_s}));
    }

    void multiplicationSaysThePlaceOfTheCaret()
    {
        openMultiplication();
        heard();
        key('4');
        QCOMPARE(heard(), {u"decenas"_s});
        key('0');
        QCOMPARE(heard(), {u"centenas"_s});
        key(Qt::Key_Right);
        QCOMPARE(heard(), {u"decenas"_s});
        key(Qt::Key_Shift);
        QCOMPARE(heard(), {u"4 por 6"_s});
        key(Qt::Key_Control); // nothing has moved
        QCOMPARE(heard(), QStringList());
        key(Qt::Key_F2); // the caret steps at its release, as at that of any such key
        QCOMPARE(heard(), (QStringList{u"1234 por 56"_s, u"centenas"_s}));
        key(Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"TbParcial(1)"_s);
        QCOMPARE(heard(), {u"unidades"_s});
        key(Qt::Key_Space);
        QCOMPARE(heard(), {u"decenas"_s});
    }

    void divisionSaysExerciseSquaresAndSolution()
    {
        openDivision();
        QCOMPARE(
            inOrder(heard()), (QStringList{u"84 entre 7"_s, u"línea 1; del dividendo, 8"_s}));
        key('1');
        QCOMPARE(heard(), QStringList()); // the caret stays
        key(Qt::Key_Right);
        QCOMPARE(heard(), {u"línea 1; del dividendo, 4"_s});
        key(Qt::Key_Down);
        key(Qt::Key_Left);
        QCOMPARE(heard(),
            (QStringList{
                u"línea 2; del dividendo, 4"_s, u"línea 2; encima, 1; del dividendo, 8"_s}));
        key(Qt::Key_F2);
        QCOMPARE(heard(), {u"84 entre 7"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(heard(), {u"Resultado incorrecto"_s});
        bench->click(u"Command2(2)"_s);
        QCOMPARE(heard(), {u"Solución: cociente 12, resto 0"_s});
        bench->random.append({0.595f, 0.45f});
        bench->click(u"Command2(0)"_s);
        QCOMPARE(heard(), (QStringList{u"60 entre 5"_s, u"línea 1; del dividendo, 6"_s}));
    }

    void combinedOperationsSayExerciseAndSolution()
    {
        for (const int number : {5, 3, 4, 2, 6, 3})
            bench->random.appendInteger(number, 8, 2);
        for (const int oper : {1, 3, 4})
            bench->random.appendInteger(oper, 4, 1);
        bench->open<written::FRMCombi>();
        QCOMPARE(heard(),
            {u"abre paréntesis 5 más 3 cierra paréntesis más 4 por 2 menos 18 entre 3"_s});
        bench->click(u"Command2(2)"_s);
        QCOMPARE(heard(), {u"Solución: 10"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(heard(), {u"Resultado correcto"_s});
    }

    void multiplesSayExerciseAndSolution()
    {
        bench->random.append({0.0f});
        bench->random.appendInteger(4, 9, 2);
        bench->open<written::FrmMultidivi>();
        QCOMPARE(heard(), {u"Introduzca tres múltiplos diferentes del número indicado: 4"_s});
        bench->click(u"Command2(2)"_s);
        QCOMPARE(heard(), {u"Solución: 12, 16 y 20"_s});
        bench->click(u"Command1"_s);
        QCOMPARE(heard(), {u"Resultado correcto"_s});
    }

private:
    void appendFactor(int value, int digits)
    {
        bench->random.append({static_cast<float>((value - 0.5) / std::pow(10.0, digits))});
    }
    void openMultiplication()
    {
        bench->screens.add<written::Dialog>();
        appendFactor(1234, 4);
        appendFactor(56, 2);
        bench->open<written::Form3>();
    }
    void openDivision()
    {
        bench->random.append({0.835f, 0.65f});
        bench->open<written::Form6>();
    }
    template <typename Key> static void key(Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
    }

    std::unique_ptr<ScreenBench> bench;
};

PIZARRIN_SCREEN_TEST_MAIN(SpokenScreensTest)
#include "spoken_screens_test.moc"
