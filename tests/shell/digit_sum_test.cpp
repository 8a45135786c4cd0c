#include "support/digit_sum_screen.h"
#include "support/screen_bench.h"

using namespace Qt::StringLiterals;

/// The smallest activity, played from end to end.
class DigitSumTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        append(3, 5);
        screen = &bench->open<FrmSuma>();
    }
    void cleanup() { bench.reset(); }

    void comesUpWithAnExercise()
    {
        QCOMPARE(bench->text(u"TbSuma"_s), u"3 + 5"_s);
        QCOMPARE(bench->text(u"TbEjercicios"_s), u"Ejercicios: 0 Errores: 0"_s);
        QCOMPARE(bench->focusName(), u"TbRespuesta"_s);
        QCOMPARE(screen->spokenExercise(), u"3 más 5"_s);
    }

    void aWrongAnswerCountsUntilARightOne()
    {
        answer(u"9"_s);
        QCOMPARE(bench->text(u"TbResultado"_s), u"Mal"_s);
        QCOMPARE(bench->text(u"TbEjercicios"_s), u"Ejercicios: 1 Errores: 1"_s);
        bench->click(u"Command2(1)"_s);
        QCOMPARE(bench->text(u"TbRespuesta"_s), QString());
        answer(u"8"_s);
        QCOMPARE(bench->text(u"TbResultado"_s), u"Bien"_s);
        QCOMPARE(bench->text(u"TbEjercicios"_s), u"Ejercicios: 2 Errores: 1"_s);
        QCOMPARE(bench->focusName(), u"Command2(0)"_s);
    }

    void theSolutionEndsTheCounting()
    {
        bench->click(u"Command2(2)"_s);
        QCOMPARE(bench->text(u"TbRespuesta"_s), u"8"_s);
        bench->click(u"Command1"_s);
        QCOMPARE(bench->text(u"TbEjercicios"_s), u"Ejercicios: 0 Errores: 0"_s);
    }

    void theNextExerciseBeginsEmpty()
    {
        answer(u"8"_s);
        append(9, 1);
        bench->click(u"Command2(0)"_s);
        QCOMPARE(bench->text(u"TbSuma"_s), u"9 + 1"_s);
        QCOMPARE(bench->text(u"TbRespuesta"_s), QString());
        QCOMPARE(bench->text(u"TbResultado"_s), QString());
        QCOMPARE(bench->focusName(), u"TbRespuesta"_s);
    }

private:
    void append(int first, int second) const
    {
        bench->random.appendInteger(first, 9, 1);
        bench->random.appendInteger(second, 9, 1);
    }
    void answer(const QString& keys) const
    {
        bench->type(u"TbRespuesta"_s, keys);
        bench->key(u"TbRespuesta"_s, Qt::Key_Return);
    }

    std::unique_ptr<ScreenBench> bench;
    FrmSuma* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(DigitSumTest)
#include "digit_sum_test.moc"
