#include "problems/statement_box.h"

#include "core/random.h"
#include "problems/bank.h"
#include "problems/expression.h"
#include "problems/problem_session_screen.h"
#include "problems/problem_template.h"
#include "support/bank_folder.h"
#include "support/screen_bench.h"

#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;
using problems::StatementBox;

namespace {

const QString Short = u"¿Cuánto es el doble de 7?"_s;

/// The statement of every line of the bank that the program comes with.
QStringList starterStatements()
{
    const auto bank = problems::LeerBanco(QString::fromUtf8(PIZARRIN_RESOURCES));
    const problems::ExpressionEvaluator evaluator(u"VBScript"_s);
    core::SeededRandom random;
    random.seed(1);
    QStringList statements;
    for (const QString& line : bank.value().lines)
        statements << problems::InstanciarProblema(line, random, evaluator).statement;
    return statements;
}

QString longest(const QStringList& statements)
{
    return *std::ranges::max_element(statements, {}, &QString::size);
}

} // namespace

/// The statement on the screen of the word problems.
class StatementBoxTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        writeBank(bench->folder.path(), {"P0|10||*", "P1|11||*"});
        bench->random.append({0.0f});
        screen = &bench->open<problems::FormProblemas>();
        designSize = QSizeF(screen->size()) / screen->factor();
        box = &bench->control<StatementBox>(u"TBEnunciado"_s);
    }
    void cleanup() { bench.reset(); }

    void theLettersFillTheBox_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<int>("letters");
        QTest::newRow("short") << Short << 28;
        QTest::newRow("half a page") << (Short + u' ').repeated(8) << 24;
        QTest::newRow("two thirds of a page") << (Short + u' ').repeated(13) << 21;
        QTest::newRow("a page") << (Short + u' ').repeated(16) << 18;
    }
    void theLettersFillTheBox()
    {
        QFETCH(QString, statement);
        box->setStatement(statement);
        QTEST(box->font().pixelSize(), "letters");
        QCOMPARE(box->document()->defaultFont(), box->font());
        QVERIFY(isSeenWhole());
    }

    void theyAreTheLargestThatFitAtEveryFactor_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::newRow("short") << Short;
        QTest::newRow("half a page") << (Short + u' ').repeated(8);
        QTest::newRow("longest of the starter bank") << longest(starterStatements());
        QTest::newRow("a page") << (Short + u' ').repeated(16);
    }
    void theyAreTheLargestThatFitAtEveryFactor()
    {
        QFETCH(QString, statement);
        box->setStatement(statement);
        for (const double factor : {1.0, 1.25, 1.6, 2.0, 4.0}) {
            zoom(factor);
            const int chosen = box->font().pixelSize();
            for (const int size : {28, 24, 21, 18}) {
                const QFont font = ui::look::scaled({ui::look::Family::Andika, size}, factor);
                if (font.pixelSize() < chosen)
                    break;
                box->setFont(font);
                QCOMPARE(isSeenWhole(), font.pixelSize() == chosen);
            }
        }
    }

    void everyStarterStatementIsSeenWholeInLargeLetters()
    {
        for (const QString& statement : starterStatements()) {
            box->setStatement(statement);
            QVERIFY2(isSeenWhole(), qPrintable(statement));
            QVERIFY2(box->font().pixelSize() >= 21, qPrintable(statement));
        }
    }

    void aStatementTooLongForTheSmallestLettersIsScrolled()
    {
        box->setStatement((Short + u' ').repeated(100));
        QCOMPARE(box->font().pixelSize(), 18);
        QVERIFY(!isSeenWhole());
        QVERIFY(box->verticalScrollBar()->isVisible());
    }

    void aWordWiderThanTheBoxIsBroken()
    {
        box->setStatement(QString(300, u'm'));
        QCOMPARE(box->horizontalScrollBar()->maximum(), 0);
        QVERIFY(isSeenWhole());
    }

    void theNextStatementIsMeasuredAnew()
    {
        box->setStatement(longest(starterStatements()));
        box->setStatement(Short);
        QCOMPARE(box->font().pixelSize(), 28);
    }

private:
    void zoom(double factor)
    {
        screen->resize((designSize * factor).toSize());
        QCOMPARE(screen->factor(), factor);
    }

    bool isSeenWhole() const
    {
        return box->verticalScrollBar()->maximum() == 0
            && box->document()->size().height() <= box->viewport()->height();
    }

    QSizeF designSize;
    std::unique_ptr<ScreenBench> bench;
    problems::FormProblemas* screen = nullptr;
    StatementBox* box = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(StatementBoxTest)
#include "statement_box_test.moc"
