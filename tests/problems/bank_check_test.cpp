#include "problems/bank_check.h"

#include "core/random.h"
#include "problems/expression.h"
#include "problems/used_operations.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using problems::Fault;
using Faults = std::vector<problems::TemplateFault>;

class BankCheckTest : public QObject {
    Q_OBJECT

private:
    const problems::ExpressionEvaluator evaluator{u"VBScript"_s};

    Faults check(const QString& line) const
    {
        core::SeededRandom random;
        random.seed(1);
        return problems::checkLine(line, random, evaluator);
    }

private slots:
    void findsNothingInACleanLine_data()
    {
        QTest::addColumn<QString>("line");
        const auto row = [](const char* name, const QString& line) {
            QTest::newRow(name) << line;
        };
        row("product", u"Hay [3_9] cajas de [4_8] latas. ¿Cuántas son?|{&1*&2}|latas|*"_s);
        row("hidden datum",
            u"Reparto {&1*&2} latas entre [3_9]. ¿Cuántas a cada uno?|{&1*[4_9]/&1}|latas|/"_s);
        row("left over", u"De [20_40] quito grupos de 7.|{&1 Mod 7}||/"_s);
        row("rounded up", u"[11_19] en cajas de [5_9].|{(&1+&2-1)\\&2}|cajas|/"_s);
        row("a datum too many", u"Tengo [5_9] gatos y [2_4] euros; compro [3_8].|{&2+&3}||+"_s);
        row("not marked with all", u"Hay [3_9] de [4_8].|{&1*&2}||*"_s);
        row("answer that shows no operation", u"Reparto {&1*&2} entre [3_9].|[4_9]||/"_s);
        row("1 before a singular", u"Falta 1 mes y [2_9] días.|{&1+30}|días|+"_s);
        row("1 in another number", u"Son 21 cajas y 0,1 kilos de [2_9].|{&1+21}||+"_s);
        row("0 is not negative", u"[3_9] menos [1_3].|{&1-&2}||-"_s);
    }
    void findsNothingInACleanLine()
    {
        QFETCH(QString, line);
        const Faults faults = check(line);
        QVERIFY2(faults.empty(), faults.empty() ? "" : qPrintable(faults.front().text));
    }

    void findsAFault_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<Fault>("kind");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QString& line, Fault kind,
                             const QString& text) {
            QTest::newRow(name) << line << kind << text;
        };
        row("no separators", u"[2_9]"_s, Fault::Unreadable,
            u"Los separadores «|» han de ser 3 y hay 0."_s);
        row("too many separators", u"[2_9]|{&1+1}|u|k|+"_s, Fault::Unreadable,
            u"Los separadores «|» han de ser 3 y hay 4."_s);
        row("no answer", u"[2_9]| |u|+"_s, Fault::Unreadable, u"Falta el resultado."_s);
        row("no operation", u"[2_9]|{&1+1}|u|"_s, Fault::Unreadable,
            u"No tiene ninguna operación marcada."_s);
        row("open datum", u"[2_9 y [3_8]|{&1+1}|u|+"_s, Fault::Unreadable,
            u"Falta cerrar un «[» en el enunciado."_s);
        row("open braces", u"[2_9]|{&1+1|u|+"_s, Fault::Unreadable,
            u"Falta cerrar un «{» en el resultado."_s);
        row("closed without opening", u"[2_9]|{&1+1}|u}|+"_s, Fault::Unreadable,
            u"Hay un «}» que no cierra nada en la unidad."_s);
        row("open parenthesis", u"[2_9] (más|{&1+1}|u|+"_s, Fault::Unreadable,
            u"Falta cerrar un «(»."_s);
        row("loose parenthesis", u"[2_9] más)|{&1+1}|u|+"_s, Fault::Unreadable,
            u"Hay un «)» que no cierra nada."_s);
        row("limits", u"[2-9]|{&1+1}|u|+"_s, Fault::Unreadable,
            u"[2-9] no se entiende: un dato se escribe [mínimo_máximo]."_s);
        row("datum outside braces", u"[2_9] y &1|{&1+1}|u|+"_s, Fault::Unreadable,
            u"&1 está fuera de unas llaves y no se cambia por el dato."_s);
        row("expression", u"[2_2]|{&1+}|u|+"_s, Fault::Unreadable,
            u"Falta un número al final (carácter 3 de «2+»). Está en: {&1+}"_s);
        row("division by zero", u"[0_0] y [2_9]|{&2/&1}|u|/"_s, Fault::Unreadable, QString());
        row("missing datum", u"[2_9]|{&1+&2}|u|+"_s, Fault::MissingDatum,
            u"{&1+&2} usa el dato &2, que no existe y vale 0."_s);
        row("rounded", u"[3_3] y [2_9]|{&1/2}|u|/"_s, Fault::Rounded, QString());
        row("negative", u"[1_9]|{&1-4}|u|-"_s, Fault::Negative, QString());
        row("negative datum", u"[-3_9]|{&1+4}|u|+"_s, Fault::Negative, QString());
        row("never varies", u"Dos y dos.|4|u|+"_s, Fault::NeverVaries,
            u"Sale siempre igual: no tiene datos variables."_s);
        row("singular", u"Hay [1_9] cajas.|{&1+1}|u|+"_s, Fault::SingularBeforePlural,
            u"Puede salir «1 cajas»."_s);
        row("singular answer", u"[2_9] menos uno|{&1-1}|cajas|-"_s, Fault::SingularBeforePlural,
            u"Puede salir «1 cajas»."_s);
        row("unused marks", u"[2_9]|{&1+1}|u|*+-"_s, Fault::UnusedMark,
            u"Está marcado con «Mult» y «Rest» y el resultado no lo usa."_s);
    }
    void findsAFault()
    {
        QFETCH(QString, line);
        QFETCH(Fault, kind);
        QFETCH(QString, text);
        const Faults faults = check(line);
        const auto found = std::ranges::find(faults, kind, &problems::TemplateFault::kind);
        QVERIFY(found != faults.end());
        if (!text.isEmpty())
            QCOMPARE(found->text, text);
    }

    void givesAnExampleOfADraw()
    {
        QCOMPARE(check(u"[3_3] de [2_2]|{&1/&2}|u|/"_s),
            (Faults{{Fault::Rounded,
                        u"{&1/&2} da 1,5 y se redondea a 2. Por ejemplo, con &1 = 3, &2 = 2."_s},
                {Fault::NeverVaries, u"Sale siempre igual: no tiene datos variables."_s}}));
        QVERIFY(check(u"[0_0]|{2/&1}|u|/"_s).front().text.startsWith(u"División entre 0"_s));
    }

    void findsWhatHardlyEverComes()
    {
        const Faults faults = check(u"Hay [0_200] latas; se gasta 1.|{&1-1}|latas|-"_s);
        QVERIFY(std::ranges::find(faults, Fault::Negative, &problems::TemplateFault::kind)
            != faults.end());
    }

    void tellsTheOperationsThatAreUsed_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("operations");
        QTest::newRow("all") << u"[2_3] [4_5]|{&1*&2/2+1-1}||"_s << 15;
        QTest::newRow("shown") << u"[2_3] {&1+&2} [4_5]|{(&1+&2)*2}||"_s << 1;
        QTest::newRow("shown more often") << u"{2*&1} [2_3]|{2*&1+2*&1/2}||"_s << 6;
        QTest::newRow("not a part of a number") << u"{2*&1} [2_3]|{12*&1}||"_s << 1;
        QTest::newRow("power") << u"[2_3]|{&1^2}||"_s << 1;
        QTest::newRow("whole division") << u"[2_3]|{&1\\2}||"_s << 2;
        QTest::newRow("remainder") << u"[2_3]|{&1 mod 2}||"_s << 2;
        QTest::newRow("rounded up") << u"[2_3] [4_5]|{(&1+&2-1)\\&2}||"_s << 2;
        QTest::newRow("empty braces") << u"{}"_s.repeated(60) + u"[2_3]|{&1+1}||"_s << 4;
        QTest::newRow("hidden datum") << u"{&1*&2} [2_3]|[4_5]||"_s << 15;
    }
    void tellsTheOperationsThatAreUsed()
    {
        QFETCH(QString, line);
        QTEST(int(problems::usedOperations(line)), "operations");
    }

    void reportsByLine()
    {
        core::SeededRandom random;
        const auto report = problems::checkBank(
            {u"Dos.|2|u|+"_s, u"Hay [3_9] cajas.|{&1+1}|cajas|+"_s, u"[2_9]|{&1+&2}||+"_s},
            random, evaluator);
        QCOMPARE(report.faultyLines, 2);
        QCOMPARE(report.text,
            u"Línea 1: Dos.|2|u|+\n"
            "  - Sale siempre igual: no tiene datos variables.\n"
            "  - Está marcado con «Sum» y el resultado no lo usa.\n"
            "Línea 3: [2_9]|{&1+&2}||+\n"
            "  - {&1+&2} usa el dato &2, que no existe y vale 0.\n"
            "Problemas leídos: 3. Con faltas: 2.\n"_s);
    }
};

QTEST_GUILESS_MAIN(BankCheckTest)
#include "bank_check_test.moc"
