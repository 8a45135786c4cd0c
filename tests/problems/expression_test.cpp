#include "problems/expression.h"

#include <QtTest>

#include <cmath>
#include <random>

using namespace Qt::StringLiterals;
using problems::ExpressionError;
using problems::ExpressionEvaluator;

namespace {

/// A random expression together with its value, worked out while it is written: the text
/// gets brackets wherever the tree needs them, so the two know nothing of each other.
struct Written {
    QString text;
    double value = 0;
    int rank = 0; // 0 + -, 1 Mod, 2 \, 3 * /, 4 minus in front, 5 ^, 6 a number or brackets
};

constexpr int AtomRank = 6;

class Writer {
public:
    explicit Writer(unsigned seed)
        : m_engine(seed)
    {
    }

    Written write(int depth)
    {
        if (depth == 0 || draw(5) == 0)
            return number();
        const int rank = draw(AtomRank);
        return rank == 4 ? negative(depth) : binary(rank, depth);
    }

private:
    int draw(int count) { return int(m_engine() % unsigned(count)); }

    QString blanks() { return QString(draw(3), u' '); }

    Written number()
    {
        const int whole = draw(30);
        if (draw(4) != 0)
            return {QString::number(whole), double(whole), AtomRank};
        const int quarters = draw(4);
        const QString decimals = QStringList{u"0"_s, u"25"_s, u"5"_s, u"75"_s}[quarters];
        return {
            u"%1.%2"_s.arg(QString::number(whole), decimals), whole + quarters / 4.0, AtomRank};
    }

    Written negative(int depth)
    {
        const Written inner = write(depth - 1);
        return {u'-' + blanks() + bracketed(inner, inner.rank < 4), -inner.value, 4};
    }

    Written binary(int rank, int depth)
    {
        const Written a = write(depth - 1);
        // A power is kept small, so that most of the values stay finite.
        const Written b = rank == 5 ? exponent() : write(depth - 1);
        // The left operand may have the same rank, since operators go from left to right;
        // a sign in front is no operand of ^ and may stand bare to the right of the others.
        const bool bracketLeft = a.rank < rank;
        const bool bracketRight = b.rank <= rank && b.rank != 4;
        const QString sign = signOf(rank);
        return {
            bracketed(a, bracketLeft) + blanks() + sign + blanks() + bracketed(b, bracketRight),
            valueOf(sign, a.value, b.value), rank};
    }

    Written exponent()
    {
        const int value = draw(7) - 3;
        return {QString::number(value), double(value), value < 0 ? 4 : AtomRank};
    }

    QString signOf(int rank)
    {
        switch (rank) {
        case 0:
            return draw(2) ? u"+"_s : u"-"_s;
        case 1:
            return draw(2) ? u" Mod "_s : u" mOD "_s;
        case 2:
            return u"\\"_s;
        case 3:
            return draw(2) ? u"*"_s : u"/"_s;
        default:
            return u"^"_s;
        }
    }

    static QString bracketed(const Written& inner, bool bracket)
    {
        return bracket ? u"( %1)"_s.arg(inner.text) : inner.text;
    }

    static double valueOf(const QString& sign, double a, double b)
    {
        if (!std::isfinite(a) || !std::isfinite(b))
            return std::nan(""); // an error stays one, whatever is done with it
        if (sign == u"+")
            return a + b;
        if (sign == u"-")
            return a - b;
        if (sign == u"*")
            return a * b;
        if (sign == u"/")
            return b == 0 ? std::nan("") : a / b;
        if (sign == u"^")
            return a == 0 && b < 0 ? std::nan("") : std::pow(a, b);
        const double dividend = std::nearbyint(a); // half to even, as the system rounds
        const double divisor = std::nearbyint(b);
        const auto fits = [](double x) { return x >= -2147483648.0 && x <= 2147483647.0; };
        if (!fits(dividend) || !fits(divisor) || divisor == 0)
            return std::nan("");
        const auto whole = std::int64_t(dividend) / std::int64_t(divisor);
        return double(
            sign == u"\\" ? whole : std::int64_t(dividend) - whole * std::int64_t(divisor));
    }

    std::mt19937 m_engine;
};

} // namespace

class ExpressionTest : public QObject {
    Q_OBJECT

private slots:
    void knowsOneLanguage()
    {
        QVERIFY_THROWS_NO_EXCEPTION(ExpressionEvaluator(u"VBScript"_s));
        QVERIFY_THROWS_EXCEPTION(core::Error, ExpressionEvaluator(u"JScript"_s));
        QVERIFY_THROWS_EXCEPTION(core::Error, ExpressionEvaluator(u"vbscript"_s));
        QVERIFY_THROWS_EXCEPTION(core::Error, ExpressionEvaluator{QString()});
    }

    void evaluates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const auto row = [](const char* text, double value) {
            QTest::newRow(text) << QString::fromLatin1(text) << value;
        };

        row("7", 7);
        row("007", 7);
        row("2.5", 2.5);
        row(".5", 0.5);
        row("5.", 5);
        row("3+4", 7);
        row("3-4", -1);
        row("3*4", 12);
        row("7/2", 3.5);
        row("7\\2", 3);
        row("7 Mod 3", 1);
        row("7 mod 3", 1);
        row("7 MOD 3", 1);
        row("7Mod3", 1);
        row("7 Mod(3)", 1);
        row("(7)Mod(3)", 1);
        row("2^10", 1024);
        row("2^-1", 0.5);
        row("2^ - 1", 0.5);
        row("9^0.5", 3);
        row("0^0", 1);
        row("-7", -7);
        row("+7", 7);
        row("--7", 7);
        row("-+-7", 7);
        row("3--4", 7);
        row("3*-4", -12);
        row("3+-4", -1);
        row("((3))", 3);
        row("  ( 3 + 4 )  *  2 ", 14);
        row("\t3\t+\t4\t", 7);

        // precedence
        row("2+3*4", 14);
        row("(2+3)*4", 20);
        row("2*3+4", 10);
        row("20-6/2", 17);
        row("-2^2", -4);
        row("(-2)^2", 4);
        row("-2^-2", -0.25);
        row("2*3^2", 18);
        row("2*-3^2", -18);
        row("2^-1*4", 2);
        row("7\\2*3", 1);
        row("2*7\\3", 4);
        row("7\\-2", -3);
        row("10 Mod 4\\3", 0);
        row("10\\4 Mod 3", 2);
        row("10 Mod 4*2", 2);
        row("10+7 Mod 4", 13);
        row("7 Mod 4+10", 13);
        row("-7 Mod 3", -1);
        row("7 Mod -3", 1);
        row("-7\\2", -3);

        // from left to right
        row("10-4-3", 3);
        row("10-4+3", 9);
        row("100/10/5", 2);
        row("100/10*5", 50);
        row("100\\7\\3", 4);
        row("100 Mod 30 Mod 7", 3);
        row("2^3^2", 64);
        row("2^-1^2", 0.25);

        // \ and Mod round half to even first
        row("7.5\\2", 4);
        row("6.5\\2", 3);
        row("7\\2.5", 3);
        row("7\\3.5", 1);
        row("7.5 Mod 3", 2);
        row("6.5 Mod 4", 2);
        row("-2.5\\2", -1);
        row("2147483647\\-1", -2147483647);
        row("-2147483648\\1", -2147483648.0);
        row("-2147483648\\-1", 2147483648.0); // no 32-bit division, no wrap
        row("-2147483648 Mod -1", 0);

        // no wrap, no negative zero to be seen
        row("40000*40000", 1.6e9);
        row("0.00000000000000000000000001*0", 0);
    }
    void evaluates()
    {
        QFETCH(QString, text);
        QTEST(ExpressionEvaluator(u"VBScript"_s).evaluate(text), "value");
    }

    void saysWhatIsWrongAndWhere_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::addColumn<qsizetype>("position");
        const auto row = [](const QString& text, const QString& what, qsizetype position) {
            QTest::newRow(qUtf8Printable(text))
                << text << u"%1 (carácter %2 de «%3»)."_s.arg(what).arg(position).arg(text)
                << position;
        };

        QTest::newRow("empty") << QString() << u"La expresión está vacía."_s << qsizetype(1);
        QTest::newRow("blanks") << u"  "_s << u"La expresión está vacía."_s << qsizetype(3);
        row(u"3+"_s, u"Falta un número al final"_s, 3);
        row(u"3+ "_s, u"Falta un número al final"_s, 4);
        row(u"-"_s, u"Falta un número al final"_s, 2);
        row(u"("_s, u"Falta un número al final"_s, 2);
        row(u"*3"_s, u"Falta un número"_s, 1);
        row(u"3+*4"_s, u"Falta un número"_s, 3);
        row(u"3 Mod Mod 4"_s, u"Falta un número"_s, 7);
        row(u"Mod 4"_s, u"Falta un número"_s, 1);
        row(u"()"_s, u"Falta un número"_s, 2);
        row(u"(3"_s, u"Falta cerrar el paréntesis abierto"_s, 1);
        row(u"2*(3+(4)"_s, u"Falta cerrar el paréntesis abierto"_s, 3);
        row(u"3)"_s, u"«)» no se entiende ahí"_s, 2);
        row(u"3 4"_s, u"«4» no se entiende ahí"_s, 3);
        row(u"(3 4)"_s, u"«4» no se entiende ahí"_s, 4);
        row(u"3(4)"_s, u"«(» no se entiende ahí"_s, 2);
        row(u"1.2.3"_s, u"«.» no se entiende ahí"_s, 4);
        row(u"."_s, u"Un punto solo no es un número"_s, 1);
        row(u"2,5"_s, u"Los decimales se escriben con punto, no con coma"_s, 2);
        row(u"3×4"_s, u"«×» no se entiende ahí"_s, 2);
        row(u"3+💥"_s, u"«💥» no se entiende ahí"_s, 3);
        row(u"3+💥4"_s, u"«💥» no se entiende ahí"_s, 3);
        row(u"&1*2"_s, u"«&» no se entiende ahí"_s, 1);
        row(u"1e5"_s, u"«e» no se entiende ahí"_s, 2);
        row(u"inf"_s, u"«i» no se entiende ahí"_s, 1);
        row(u"nan"_s, u"«n» no se entiende ahí"_s, 1);
        row(u"7 Modo 3"_s, u"«M» no se entiende ahí"_s, 3);
        row(u"7 Mo 3"_s, u"«M» no se entiende ahí"_s, 3);
        row(u"٣"_s, u"«٣» no se entiende ahí"_s, 1);
        row(u"7/0"_s, u"División entre 0"_s, 2);
        row(u"0/0"_s, u"División entre 0"_s, 2);
        row(u"1/-0"_s, u"División entre 0"_s, 2);
        row(u"7 \\ 0.5"_s, u"División entre 0"_s, 3);
        row(u"7 Mod 0"_s, u"División entre 0"_s, 3);
        row(u"0^-1"_s, u"División entre 0"_s, 2);
        row(u"(-4)^0.5"_s, u"Esa potencia no existe"_s, 5);
        row(u"9^9^9^9^9"_s, u"El resultado es demasiado grande"_s, 6);
        row(u"2147483648\\2"_s, u"El número es demasiado grande para dividir con \\ o Mod"_s, 11);
        row(u"1\\-2147483649"_s, u"El número es demasiado grande para dividir con \\ o Mod"_s, 2);
        row(u"1 Mod 3000000000"_s, u"El número es demasiado grande para dividir con \\ o Mod"_s,
            3);
    }
    void saysWhatIsWrongAndWhere()
    {
        QFETCH(QString, text);
        try {
            ExpressionEvaluator(u"VBScript"_s).evaluate(text);
            QFAIL("evaluated");
        } catch (const ExpressionError& error) {
            QTEST(error.text(), "message");
            QTEST(error.position(), "position");
        }
    }

    void showsTheFirst60Characters()
    {
        const QString sum = u"1+"_s.repeated(30);
        const auto shown = [](const QString& text) {
            try {
                ExpressionEvaluator(u"VBScript"_s).evaluate(text);
                return QString();
            } catch (const ExpressionError& error) {
                return error.text().section(u"de "_s, -1);
            }
        };
        QCOMPARE(shown(sum), u"«%1»)."_s.arg(sum));
        QCOMPARE(shown(sum + u"+"_s), u"«%1…»)."_s.arg(sum));
    }

    void readsNumbersOfAnyLength()
    {
        const ExpressionEvaluator evaluator(u"VBScript"_s);
        const QString zeros(400, u'0');
        QCOMPARE(evaluator.evaluate(zeros + u"7"_s), 7.0);
        QCOMPARE(evaluator.evaluate(u"0."_s + zeros + u"1"_s), 0.0);
        QCOMPARE(evaluator.evaluate(u"."_s + zeros + u"1"_s), 0.0);
        QVERIFY_THROWS_EXCEPTION(ExpressionError, evaluator.evaluate(u"1"_s + zeros));
        QVERIFY_THROWS_EXCEPTION(ExpressionError, evaluator.evaluate(u"01"_s + zeros + u".5"_s));
    }

    void refusesTooManyBracketsWithoutRunningOutOfStack()
    {
        const ExpressionEvaluator evaluator(u"VBScript"_s);
        const auto nested = [](int depth) {
            return QString(depth, u'(') + u"3"_s + QString(depth, u')');
        };
        QCOMPARE(evaluator.evaluate(nested(ExpressionEvaluator::DeepestBrackets)), 3.0);
        for (const QString& text : {nested(ExpressionEvaluator::DeepestBrackets + 1),
                 nested(10'000), QString(10'000, u'(')}) {
            try {
                evaluator.evaluate(text);
                QFAIL("evaluated");
            } catch (const ExpressionError& error) {
                QCOMPARE(error.position(), ExpressionEvaluator::DeepestBrackets + 1);
                QVERIFY(error.text().startsWith(
                    u"Hay demasiados paréntesis, unos dentro de otros (carácter 201 de «((("));
            }
        }
        // brackets side by side are not deep, and signs in a row need none
        QCOMPARE(evaluator.evaluate(u"0"_s + u"+(1)"_s.repeated(10'000)), 10'000.0);
        QCOMPARE(evaluator.evaluate(QString(10'000, u'-') + u"7"_s), 7.0);
    }

    void agreesWithAnIndependentEvaluation()
    {
        const ExpressionEvaluator evaluator(u"VBScript"_s);
        Writer writer(20'240'907);
        int valued = 0;
        for (int round = 0; round < 20'000; ++round) {
            const Written written = writer.write(5);
            try {
                const double value = evaluator.evaluate(written.text);
                QVERIFY2(value == written.value, qUtf8Printable(written.text));
                ++valued;
            } catch (const ExpressionError&) {
                QVERIFY2(!std::isfinite(written.value), qUtf8Printable(written.text));
            }
        }
        QVERIFY(valued > 10'000);
    }
};

QTEST_GUILESS_MAIN(ExpressionTest)
#include "expression_test.moc"
