#include "support/window_manager.h"
#include "ui/application.h"
#include "ui/look.h"
#include "ui/squared_box.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using ui::SquaredBox;

namespace {

constexpr double Columns = 12;
constexpr double CaretGap = 3; // pixels at factor 1, from an edge
constexpr ui::TwipRect Place{1250, 2600, 3000, 500};
constexpr ui::look::Font DigitFont{ui::look::Family::CourierNew, 28, true};

/// The columns of pixels that hold something of this colour, first and last; -1 for none.
std::pair<int, int> inkedColumns(const QImage& image, QRgb colour)
{
    std::pair<int, int> found(-1, -1);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != colour)
                continue;
            if (found.first < 0)
                found.first = x;
            found.second = x;
        }
    }
    return found;
}

} // namespace

class SquaredBoxTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QWidget> window;
    SquaredBox* box = nullptr;
    double factor = 1;

    void makeBox(double factorAsked)
    {
        factor = factorAsked;
        window = std::make_unique<QWidget>();
        box = new SquaredBox(SquaredBox::Kind::Entry, window.get());
        box->setFrame(false);
        box->setFont(ui::look::scaled(DigitFont, factor));
        box->setGeometry(ui::toPixels(Place, factor));
        box->setFactor(factor);
        window->resize(box->geometry().bottomRight().x() + 10, box->geometry().bottom() + 10);
        window->show();
        box->setFocus();
        makeActive(*window);
    }
    double square() const { return Place.width / Columns * factor / ui::TwipsPerPixel; }

private slots:
    void initTestCase() { ui::setUpApplication(); }

    void everyDigitStandsInTheMiddleOfItsSquare_data()
    {
        QTest::addColumn<double>("factorAsked");
        QTest::addColumn<int>("digits");
        for (const double f : {0.8, 1.0, 1.25, 1.5, 2.0, 3.1, 4.0}) {
            for (const int digits : {1, 2, 7, 12})
                QTest::addRow("factor %g, %d digits", f, digits) << f << digits;
        }
    }
    void everyDigitStandsInTheMiddleOfItsSquare()
    {
        QFETCH(double, factorAsked);
        QFETCH(int, digits);
        makeBox(factorAsked);
        for (int place = 0; place < digits; ++place) {
            // One mark among blanks: a symmetric sign, so that its middle is the square's.
            QString text(digits, u' ');
            text[digits - 1 - place] = u'0';
            box->setText(text);
            box->setReadOnly(true); // no caret
            const auto [first, last] = inkedColumns(box->grab().toImage(), ui::look::Ink);
            QVERIFY(first >= 0);
            const double middle = (first + last + 1) / 2.0;
            const double expected = box->width() - (place + 0.5) * square();
            QVERIFY2(std::abs(middle - expected) <= 1.01,
                qPrintable(u"%1 for %2"_s.arg(middle).arg(expected)));
        }
    }

    void theCaretStandsOnTheLineBetweenSquares_data()
    {
        QTest::addColumn<double>("factorAsked");
        for (const double f : {0.8, 1.0, 1.25, 1.5, 2.0, 3.1, 4.0})
            QTest::addRow("factor %g", f) << f;
    }
    void theCaretStandsOnTheLineBetweenSquares()
    {
        QFETCH(double, factorAsked);
        makeBox(factorAsked);
        box->setText(u"1234"_s);
        for (int caret = 1; caret <= 4; ++caret) {
            box->setCursorPosition(caret);
            const auto [first, last] = inkedColumns(box->grab().toImage(), ui::look::Focus);
            QVERIFY(first >= 0);
            const double line = box->width() - (4 - caret) * square();
            const double expected = std::min(line, box->width() - CaretGap * factor);
            QVERIFY2(first <= expected + 1 && last >= expected - 1 - 3 * factor,
                qPrintable(u"%1 to %2 for %3"_s.arg(first).arg(last).arg(expected)));
            QVERIFY(last - first <= 3 * factor + 1);
        }
        box->setText(QString(12, u'8'));
        box->setCursorPosition(0); // no square is left to be marked
        const auto [first, last] = inkedColumns(box->grab().toImage(), ui::look::Focus);
        QVERIFY(first >= CaretGap * factor - 1); // the focus ring ends before it
        QVERIFY(last <= CaretGap * factor + 3 * factor + 1);
    }

    void theSquareToBeWrittenNextIsMarked_data() { theCaretStandsOnTheLineBetweenSquares_data(); }
    void theSquareToBeWrittenNextIsMarked()
    {
        QFETCH(double, factorAsked);
        makeBox(factorAsked);
        for (const int digits : {0, 1, 4, 11}) {
            box->write(QString(digits, u'1'));
            const QImage image = box->grab().toImage();
            for (const QRgb colour : {ui::look::Here, ui::look::Focus}) {
                const auto [first, last] = inkedColumns(image, colour);
                QCOMPARE(first, qRound(box->width() - (digits + 1) * square()));
                QCOMPARE(last + 1, qRound(box->width() - digits * square()));
            }
        }
        box->clear();
        QCOMPARE(inkedColumns(box->grab().toImage(), ui::look::Ink).first, -1); // no other caret
        box->setReadOnly(true);
        QCOMPARE(inkedColumns(box->grab().toImage(), ui::look::Here).first, -1);
    }

    void aSelectionCoversWholeSquares()
    {
        for (const double f : {1.0, 1.5, 2.61}) {
            makeBox(f);
            box->setText(u"12345"_s);
            box->setSelection(1, 2);
            const QImage image = box->grab().toImage().copy(
                0, box->height() - 2, box->width(), 1); // below the digits
            const auto [first, last] = inkedColumns(image, ui::look::Focus);
            QVERIFY(std::abs(first - (box->width() - 4 * square())) <= 1 + f);
            QVERIFY(std::abs(last + 1 - (box->width() - 2 * square())) <= 1 + f);
        }
    }

    void aRunOfBlanksMayTakeUpOneSquare()
    {
        makeBox(2);
        box->setReadOnly(true);
        box->setBlankRun(5);
        box->setText(u"x     56"_s);
        QImage image = box->grab().toImage();
        auto [first, last] = inkedColumns(image, ui::look::Ink);
        QVERIFY(first >= box->width() - 4 * square() && first < box->width() - 3 * square());
        box->selectAll();
        image = box->grab().toImage().copy(0, box->height() - 2, box->width(), 1);
        std::tie(first, last) = inkedColumns(image, ui::look::Focus);
        QCOMPARE(first, qRound(box->width() - 4 * square()));
        QCOMPARE(last, box->width() - 1);
    }

    void aLongerTextStillMeetsTheSquares()
    {
        makeBox(1.5);
        box->setText(u"0"_s + QString(14, u' '));
        box->setCursorPosition(0);
        QTest::keyClick(box, Qt::Key_Home);
        box->setReadOnly(true); // no caret
        box->grab();
        const auto [first, last] = inkedColumns(box->grab().toImage(), ui::look::Ink);
        const double middle = (first + last + 1) / 2.0;
        QVERIFY2(std::abs(middle - square() / 2) <= 1.01, qPrintable(QString::number(middle)));
    }

    void aTextMayRunFromTheLeft()
    {
        for (const double f : {0.8, 1.0, 1.5, 2.0, 3.1}) {
            makeBox(f);
            box->setLeftAligned(125);
            const double start = 125 * f / ui::TwipsPerPixel;
            for (const int place : {0, 1, 7}) {
                box->setReadOnly(true); // no caret
                box->setText(QString(place, u' ') + u'0');
                const auto [first, last] = inkedColumns(box->grab().toImage(), ui::look::Ink);
                const double middle = (first + last + 1) / 2.0;
                const double expected = start + (place + 0.5) * square();
                QVERIFY2(std::abs(middle - expected) <= 1.01,
                    qPrintable(u"%1 for %2"_s.arg(middle).arg(expected)));
                box->setReadOnly(false);
                const int here = inkedColumns(box->grab().toImage(), ui::look::Here).first;
                QVERIFY(std::abs(here - (expected + square() / 2)) <= 1.01);
            }
            box->setText(u"12345"_s);
            box->setSelection(1, 2);
            const auto [first, last] =
                inkedColumns(box->grab().toImage().copy(0, box->height() - 2, box->width(), 1),
                    ui::look::Focus);
            QVERIFY(std::abs(first - (start + square())) <= 1 + f);
            QVERIFY(std::abs(last + 1 - (start + 3 * square())) <= 1 + f);
        }
    }

    void digitsStayInsideTheirSquares()
    {
        for (const double f : {0.8, 1.0, 1.25, 1.5, 2.0, 3.1, 4.0}) {
            makeBox(f);
            box->setReadOnly(true);
            box->setText(u"0123456789"_s);
            const QImage image = box->grab().toImage();
            const auto top = static_cast<int>(250 * f / ui::TwipsPerPixel);
            const auto [above, end] =
                inkedColumns(image.copy(0, 0, image.width(), top), ui::look::Ink);
            QCOMPARE(above, -1);
            QCOMPARE(end, -1);
            const auto [bottom, bottomEnd] =
                inkedColumns(image.copy(0, image.height() - 1, image.width(), 1), ui::look::Ink);
            QCOMPARE(bottom, -1);
            QCOMPARE(bottomEnd, -1);
        }
    }

    void theFocusLeavesTheCaretAlone()
    {
        makeBox(1);
        box->write(u"123"_s);
        QCOMPARE(box->cursorPosition(), 0);
        for (const Qt::FocusReason reason :
            {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason}) {
            box->setCursorPosition(1);
            box->clearFocus();
            box->setFocus(reason);
            QVERIFY(box->hasFocus());
            QCOMPARE(box->cursorPosition(), 1);
            QVERIFY(!box->hasSelectedText());
        }
    }

    void clicksFindTheirPlace()
    {
        makeBox(1.5);
        box->setText(u"1234"_s);
        box->grab(); // painted once, it knows where its text stands
        for (int caret = 0; caret <= 4; ++caret) {
            const int x = qRound(box->width() - (4 - caret) * square());
            QTest::mouseClick(box, Qt::LeftButton, {},
                QPoint(std::min(x, box->width() - 1), box->height() / 2));
            QCOMPARE(box->cursorPosition(), caret);
        }
    }
};

QTEST_MAIN(SquaredBoxTest)
#include "squared_box_test.moc"
