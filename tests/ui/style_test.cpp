#include "support/sample_screen.h"
#include "support/screen_bench.h"
#include "ui/indicators.h"
#include "ui/look.h"
#include "ui/style.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize IndicatorSize(13, 13);

using Draw = void (*)(QPainter&, const QStyleOption&, double);

QImage indicator(Draw draw, double factor, QStyle::State state)
{
    QStyleOptionButton option;
    option.rect = QRect(QPoint(2, 2), (QSizeF(IndicatorSize) * factor).toSize());
    option.state = state;
    option.palette = ui::look::palette();
    QImage image(option.rect.size() + QSize(4, 4), QImage::Format_RGB32);
    image.fill(ui::look::Card);
    QPainter painter(&image);
    draw(painter, option, factor);
    return image;
}

/// The highest contrast with white on the middle row's left third: the edge of an indicator.
double edgeContrast(const QImage& image)
{
    double highest = 1;
    for (int x = 0; x < image.width() / 3; ++x)
        highest = std::max(
            highest, ui::look::contrast(image.pixelColor(x, image.height() / 2), ui::look::Card));
    return highest;
}

} // namespace

class StyleTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;

    void zoomTo(double factor)
    {
        screen->resize((QSizeF(screen->size()) * factor / screen->factor()).toSize());
        QVERIFY(std::abs(screen->factor() - factor) < 0.01);
    }
    QMenu& menu() const { return bench->control<QMenu>(u"MnuOpc"_s); }

private slots:
    void initTestCase() { ui::setUpApplication(); }
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
    }
    void cleanup() { bench.reset(); }

    void captionsOfAMenuFitAtEveryFactor_data()
    {
        QTest::addColumn<double>("factor");
        for (const double factor : {0.9, 1.0, 1.25, 2.0, 3.0})
            QTest::addRow("factor %g", factor) << factor;
    }
    void captionsOfAMenuFitAtEveryFactor()
    {
        QFETCH(double, factor);
        QAction* longest = menu().addAction(u"&Forzar ceros en el cociente"_s);
        longest->setCheckable(true);
        zoomTo(factor);
        menu().ensurePolished();
        const QRect place = menu().actionGeometry(longest);
        const int column = qRound(0.79 * place.height()); // of the ticks, as Fusion paints it
        QString caption = longest->text();
        const int needed = menu().fontMetrics().horizontalAdvance(caption.remove(u'&'));
        QVERIFY2(place.width() >= column + needed + qRound(8 * factor),
            qPrintable(u"%1 for %2 and %3"_s.arg(place.width()).arg(column).arg(needed)));
    }

    void barItemsAreAsHighAsTheirBar()
    {
        for (const double factor : {1.0, 2.0, 3.0}) {
            zoomTo(factor);
            auto& bar = ScreenBench::find<QMenuBar>(*screen, {});
            QCOMPARE(bar.actionGeometry(menu().menuAction()).height(), bar.height() - 1);
        }
    }

    void buttonsOfBoxesHaveOneOrderOnAnyDesktop()
    {
        QCOMPARE(QApplication::style()->styleHint(QStyle::SH_DialogButtonLayout),
            int(QDialogButtonBox::WinLayout));
    }

    void iconsOfBoxesFollowTheFactor()
    {
        zoomTo(3);
        for (const QStyle::StandardPixmap pixmap : {QStyle::SP_MessageBoxInformation,
                 QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
            const QStyle& style = *QApplication::style();
            const int side = style.pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, screen);
            QCOMPARE(side, 3 * style.pixelMetric(QStyle::PM_MessageBoxIconSize));
            const QIcon icon = style.standardIcon(pixmap, nullptr, screen);
            QCOMPARE(icon.actualSize(QSize(side, side)), QSize(side, side));
        }
    }

    void contextMenusFollowTheFactor()
    {
        const double most = screen->screen()->availableGeometry().height() / 400.0;
        for (const double factor : {1.0, 1.5, 3.0}) {
            zoomTo(factor);
            const std::unique_ptr<QMenu> context(screen->entry->createStandardContextMenu());
            context->ensurePolished();
            QCOMPARE(context->font().pixelSize(),
                static_cast<int>(std::min(factor, most) * ui::look::Instruction.pixels));
        }
    }

    void indicatorsAreFoundByWeakEyesAtEveryFactor()
    {
        constexpr double Findable = 3; // contrast of an edge
        for (const Draw draw : {&ui::drawCheckBox, &ui::drawRadioButton}) {
            for (const double factor : {1.0, 1.25, 2.0, 3.0}) {
                const QImage empty = indicator(draw, factor, QStyle::State_Enabled);
                QVERIFY(edgeContrast(empty) >= Findable);
                const QImage marked =
                    indicator(draw, factor, QStyle::State_Enabled | QStyle::State_On);
                QVERIFY(marked != empty);
            }
        }
    }

    void optionsArePickedAnywhereInTheirPlace_data()
    {
        QTest::addColumn<QPointF>("place");
        QTest::newRow("top left") << QPointF(0, 0);
        QTest::newRow("top right") << QPointF(1, 0);
        QTest::newRow("bottom left") << QPointF(0, 1);
        QTest::newRow("bottom right") << QPointF(1, 1);
    }
    void optionsArePickedAnywhereInTheirPlace()
    {
        QFETCH(QPointF, place);
        for (QAbstractButton* option : std::initializer_list<QAbstractButton*>{
                 new QCheckBox(u"Uno"_s, screen), new QRadioButton(u"Otro"_s, screen)}) {
            option->resize(200, 60);
            option->show();
            const QPoint corner(qRound(place.x() * 199), qRound(place.y() * 59));
            QTest::mouseClick(option, Qt::LeftButton, {}, corner);
            QVERIFY(option->isChecked());
        }
    }

    void aScrollBarIsAHandleOnTheGroundOfItsBox()
    {
        zoomTo(2);
        screen->lines->setPlainText(QString(60, u'\n'));
        QScrollBar& bar = *screen->lines->verticalScrollBar();
        const int shortest = QApplication::style()->pixelMetric(
            QStyle::PM_ScrollBarSliderMin, nullptr, screen->lines);
        const auto colour = [&](int y) {
            const QPoint place = bar.mapTo(screen, QPoint(bar.width() / 2, y));
            return screen->grab().toImage().pixel(place);
        };
        const int last = bar.height() - shortest / 2;
        QCOMPARE(colour(shortest / 2), ui::look::Edge);
        QCOMPARE(colour(last), ui::look::Card);
        bar.setValue(bar.maximum());
        QCOMPARE(colour(shortest / 2), ui::look::Card);
        QCOMPARE(colour(last), ui::look::Edge);
        QVERIFY(ui::look::contrast(QColor(ui::look::Edge), QColor(ui::look::Card))
            >= ui::look::FindableContrast);
    }

    void aPressBesideTheHandleScrollsByAPage()
    {
        screen->lines->setPlainText(QString(60, u'\n'));
        QScrollBar& bar = *screen->lines->verticalScrollBar();
        runPendingEvents();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, bar.height() - 1});
        QVERIFY(bar.value() > 0);
        QVERIFY(bar.value() < bar.maximum() / 2); // not to where it was pressed
        QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, 0});
        QCOMPARE(bar.value(), 0);
    }
};

QTEST_MAIN(StyleTest)
#include "style_test.moc"
