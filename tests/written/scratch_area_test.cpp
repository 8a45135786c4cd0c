#include "written/scratch_area.h"

#include "support/screen_bench.h"
#include "ui/look.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using written::ScratchArea;

namespace {

constexpr ui::look::Font Font{ui::look::Family::CourierNew, 18};

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
        const QImage picture = area.viewport()->grab().toImage();
        const QList<int> columns = gridColumns(picture);
        const QList<int> rows = gridRows(picture);
        QVERIFY(columns.size() >= 27);
        QVERIFY(rows.size() >= 9);
        const int advance = QFontMetrics(ui::look::scaled(Font, factor)).horizontalAdvance(u'0');
        for (int line = 0; line < 3; ++line) {
            const QTextBlock block = area.document()->findBlockByNumber(line);
            QCOMPARE(block.layout()->lineCount(), 1);
            for (int column = 0; column < block.length() - 1; ++column) {
                QTextCursor cursor(block);
                cursor.setPosition(block.position() + column);
                const QRect caret = area.cursorRect(cursor);
                verifyMiddle(caret.left() + advance / 2.0, columns, area.square());
                QCOMPARE(caret.top(), rows.at(line));
            }
        }
    }

    void noSquareIsCutOff_data()
    {
        QTest::addColumn<double>("factor");
        for (const double factor : {0.8, 1.1, 1.33, 2.0})
            QTest::addRow("factor %g", factor) << factor;
    }

    void noSquareIsCutOff()
    {
        QFETCH(double, factor);
        ScratchArea area(nullptr);
        prepare(area, factor, {});
        for (const QSize& more : {QSize(0, 0), QSize(1, 1), QSize(11, 7), QSize(-17, -13)}) {
            area.resize(area.size() + more);
            const QImage picture = area.viewport()->grab().toImage();
            for (const auto& [lines, length] : {std::pair(gridColumns(picture), picture.width()),
                     {gridRows(picture), picture.height()}}) {
                const int pen = std::max(1, static_cast<int>(factor));
                QVERIFY(lines.first() < area.square() / 2);
                QVERIFY(lines.last() + pen <= length);
                QVERIFY(length - lines.last() - pen < area.square() / 2);
                QCOMPARE(lines.last() - lines.first(), (lines.size() - 1) * area.square());
            }
            // Nothing of a further square above them.
            const int first = gridRows(picture).first();
            for (int y = 0; y < first; ++y)
                QVERIFY(!isGrid(picture, gridColumns(picture).at(1), y));
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
        makeActive(window);
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
        area.setCursorWidth(0); // the caret would hide parts of lines
        area.show();
        settleWindows();
        QVERIFY(QTest::qWaitForWindowExposed(&area));
    }

    static bool isGrid(const QImage& picture, int x, int y)
    {
        return picture.pixelColor(x, y) == QColor(ui::look::Grid);
    }

    /// Where lines begin that go all the way with nothing written on them.
    static QList<int> gridColumns(const QImage& picture)
    {
        constexpr int Margin = 50; // beyond the first and the last line there is no square
        QList<int> columns;
        bool before = false;
        for (int x = 0; x < picture.width(); ++x) {
            bool line = true;
            for (int y = Margin; y < picture.height() - Margin; ++y)
                line = line && isGrid(picture, x, y);
            if (line && !before)
                columns << x;
            before = line;
        }
        return columns;
    }
    static QList<int> gridRows(const QImage& picture)
    {
        return gridColumns(picture.transformed(QTransform(0, 1, 1, 0, 0, 0)));
    }

    /// The place is in the middle between two lines.
    static void verifyMiddle(double place, const QList<int>& lines, int square)
    {
        const auto right = std::upper_bound(lines.begin(), lines.end(), place);
        QVERIFY(right != lines.end());
        const double middle = *right - square / 2.0;
        QVERIFY(std::abs(place - middle) <= 1.5);
    }
};

PIZARRIN_SCREEN_TEST_MAIN(ScratchAreaTest)
#include "scratch_area_test.moc"
