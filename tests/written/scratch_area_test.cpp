#include "written/scratch_area.h"

#include "support/screen_bench.h"
#include "ui/look.h"

#include <QScrollBar>
#include <QTextBlock>

using namespace Qt::StringLiterals;
using written::ScratchArea;

namespace {

constexpr ui::look::Font Font{ui::look::Family::CourierNew, 20};

} // namespace

class ScratchAreaTest : public QObject {
    Q_OBJECT

private slots:
    void everyCharacterStandsInItsSquare_data()
    {
        QTest::addColumn<double>("factor");
        for (const double factor : {0.8, 1.0, 1.1, 1.25, 1.33, 1.75, 2.0, 3.1, 4.0})
            QTest::addRow("factor %g", factor) << factor;
    }

    void everyCharacterStandsInItsSquare()
    {
        QFETCH(double, factor);
        ScratchArea area(nullptr);
        prepare(area, factor, u"(5 + 3) + 4 x 2 - 18 ÷ 3\n= 8 + 8 - 6\n= 10"_s);
        const int square = area.square();
        for (int line = 0; line < 3; ++line) {
            const QTextBlock block = area.document()->findBlockByNumber(line);
            for (int column = 0; column < block.length() - 1; ++column)
                verifySquare(area, block, line, column, square);
        }
    }

    void theSquaresFollowTheText()
    {
        ScratchArea area(nullptr);
        prepare(area, 1, QString(u"8\n"_s).repeated(60));
        area.resize(320, 200);
        area.verticalScrollBar()->setValue(17);
        const QImage picture = area.viewport()->grab().toImage();
        const QRect caret = area.cursorRect(QTextCursor(area.document()->findBlockByNumber(20)));
        QVERIFY(isGrid(picture, 150, caret.top()));
        QVERIFY(!isGrid(picture, 150, caret.top() + 1));
        QVERIFY(isGrid(picture, 150, caret.top() + area.square()));
    }

    void tabLeavesIt()
    {
        QWidget window;
        ScratchArea area(&window);
        auto* next = new QLineEdit(&window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        area.setFocus();
        QTest::keyClick(&area, Qt::Key_Tab);
        QVERIFY(next->hasFocus());
        QCOMPARE(area.toPlainText(), QString());
    }

private:
    static void prepare(ScratchArea& area, double factor, const QString& text)
    {
        area.setFont(ui::look::scaled(Font, factor));
        area.setFactor(factor);
        area.setPlainText(text);
        area.resize((QSizeF(670, 230) * factor).toSize());
        area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area.show();
        QVERIFY(QTest::qWaitForWindowExposed(&area));
    }

    static bool isGrid(const QImage& picture, int x, int y)
    {
        return picture.pixelColor(x, y) == QColor(ui::look::Grid);
    }

    /// The square of a character begins half a gap left of it and its line is as tall.
    static void verifySquare(
        const ScratchArea& area, const QTextBlock& block, int line, int column, int square)
    {
        QTextCursor cursor(block);
        const double first = area.cursorRect(cursor).x();
        cursor.setPosition(block.position() + column);
        const QRect caret = area.cursorRect(cursor);
        QVERIFY(std::abs(caret.x() - (first + column * square)) <= 1);
        const QTextBlock top = area.document()->firstBlock();
        QCOMPARE(caret.y(), area.cursorRect(QTextCursor(top)).y() + line * square);
        QCOMPARE(block.layout()->lineCount(), 1);
    }
};

PIZARRIN_SCREEN_TEST_MAIN(ScratchAreaTest)
#include "scratch_area_test.moc"
