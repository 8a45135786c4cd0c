#include "ui/look.h"
#include "ui/squared_paper.h"

#include <QtTest>

#include <set>

using namespace Qt::StringLiterals;

class SquaredPaperTest : public QObject {
    Q_OBJECT

private slots:
    void linesRunAtTheEdgesOfControls_data()
    {
        QTest::addColumn<double>("factor");
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        for (const double factor : {0.5, 0.8, 1.0, 1.13, 1.25, 1.5, 1.75, 2.0, 2.61, 4.0}) {
            const QString name = QString::number(factor);
            QTest::newRow(qPrintable(name + u" large"_s)) << factor << 250.0 << 250.0;
            QTest::newRow(qPrintable(name + u" small"_s)) << factor << 150.0 << 500.0 / 3;
        }
    }
    void linesRunAtTheEdgesOfControls()
    {
        QFETCH(double, factor);
        QFETCH(double, width);
        QFETCH(double, height);
        const ui::TwipRect place{480, 1100, 4550, 3010};
        const ui::TwipRect square{1250, 2600, width, height};
        QWidget canvas;
        canvas.resize(2000, 2000);
        auto* paper = new ui::SquaredPaper(&canvas);
        paper->setSquare(square);
        paper->setFactor(factor);
        const QRect area = ui::toPixels(place, factor);
        paper->setGeometry(area);

        std::set<int> columns;
        std::set<int> rows;
        for (int step = -40; step <= 40; ++step) {
            const QRect edge = ui::toPixels(
                {square.left + step * width, square.top + step * height, width, height}, factor);
            columns.insert(edge.left());
            rows.insert(edge.top());
        }
        // Along the middle of the squares, only the lines across are met.
        const QRect middle = ui::toPixels(
            {square.left + width / 2, square.top + height / 2, width, height}, factor);
        const QImage image = paper->grab().toImage();
        const int pen = std::max(1, static_cast<int>(factor));
        const auto isLine = [pen](const std::set<int>& lines, int at) {
            const auto next = lines.lower_bound(at - (pen - 1 - pen / 2));
            return next != lines.end() && *next - pen / 2 <= at;
        };
        const int edge = qRound(ui::look::EdgeWidth * factor) + 1; // has a colour of its own
        int met = 0;
        for (int x = edge; x < image.width() - edge; ++x) {
            const bool line = isLine(columns, area.left() + x);
            met += line ? 1 : 0;
            QCOMPARE(image.pixel(x, middle.top() - area.top()),
                line ? ui::look::Grid : ui::look::Card);
        }
        QVERIFY(met > 10);
        for (int y = edge; y < image.height() - edge; ++y)
            QCOMPARE(image.pixel(middle.left() - area.left(), y),
                isLine(rows, area.top() + y) ? ui::look::Grid : ui::look::Card);
    }

    void letsTheMouseThrough()
    {
        QWidget canvas;
        auto* paper = new ui::SquaredPaper(&canvas);
        paper->resize(100, 100);
        QCOMPARE(canvas.childAt(50, 50), nullptr);
    }
};

QTEST_MAIN(SquaredPaperTest)
#include "squared_paper_test.moc"
