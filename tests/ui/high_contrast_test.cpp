#include "support/sample_screen.h"
#include "support/screen_bench.h"
#include "ui/marks.h"
#include "ui/quiet_text.h"

using namespace Qt::StringLiterals;
namespace look = ui::look;

namespace {

constexpr QRgb White = 0xFFFFFFFF;

/// How many pixels of a picture have a colour.
int count(const QImage& image, QRgb colour)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found += image.pixel(x, y) == colour ? 1 : 0;
    }
    return found;
}

} // namespace

/// What changes where the desktop asks for high contrast, and that nothing else does.
class HighContrastTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
        screen->resize(screen->size() * 2); // at factor 2 every edge is whole pixels thick
        runPendingEvents();
    }
    void cleanup()
    {
        ask(look::Contrast::Usual);
        bench.reset();
    }

    void paperIsWhite()
    {
        QCOMPARE(screen->grab().toImage().pixel(2, 200), look::Paper);
        ask(look::Contrast::High);
        QCOMPARE(screen->grab().toImage().pixel(2, 200), White);
        QCOMPARE(look::paper(), QColor(Qt::white));
    }

    void everyOtherColourStays()
    {
        const QPalette usual = look::palette(look::Contrast::Usual);
        const QPalette high = look::palette(look::Contrast::High);
        for (int group = 0; group < QPalette::NColorGroups; ++group) {
            for (int role = 0; role < QPalette::NColorRoles; ++role) {
                const auto of = [&](const QPalette& palette) {
                    return palette.color(static_cast<QPalette::ColorGroup>(group),
                        static_cast<QPalette::ColorRole>(role));
                };
                if (role == QPalette::Midlight)
                    continue; // mixed by the toolkit, from paper too
                const bool paper = of(usual) == QColor(look::Paper);
                QCOMPARE(of(high), paper ? QColor(Qt::white) : of(usual));
            }
        }
    }

    void edgesAreTwiceAsThick()
    {
        screen->lines->setFocus();
        const QRect entry = across(*screen->entry);
        const QRect button = across(*screen->command);
        const QRgb buttonEdge = look::edgeOf(QColor(look::Yellow)).rgb();
        const int entryEdge = count(shown(entry), look::Edge);
        QCOMPARE(entryEdge, 3);
        QCOMPARE(count(shown(button), buttonEdge), 3);
        ask(look::Contrast::High);
        QCOMPARE(count(shown(entry), look::Edge), 6);
        QCOMPARE(count(shown(button), buttonEdge), 6);
    }

    void theEdgeOfAJudgedAnswerIsTwiceAsThick()
    {
        screen->lines->setFocus();
        screen->entry->setEdge(QColor(look::Wrong));
        const int usual = count(shown(across(*screen->entry)), look::Wrong);
        QCOMPARE(usual, 6);
        ask(look::Contrast::High);
        QCOMPARE(count(shown(across(*screen->entry)), look::Wrong), 12);
    }

    void theMarkOfTheFocusIsTwiceAsThick()
    {
        screen->command->setFocus();
        const QRect edge = across(*screen->command);
        const QRgb buttonEdge = look::edgeOf(QColor(look::Yellow)).rgb();
        QCOMPARE(count(shown(edge), look::Focus), 8);
        ask(look::Contrast::High);
        QCOMPARE(count(shown(edge), look::Focus), 16);
        QCOMPARE(count(shown(edge), buttonEdge), 6); // the mark is beside it
    }

    void theCaretIsTwiceAsThick()
    {
        screen->entry->setFocus();
        const QRect box = placeOf(*screen->entry);
        const QRect inside(box.left() + 2, box.center().y(), 60, 1);
        QCOMPARE(count(shown(inside), look::Focus), 6);
        ask(look::Contrast::High);
        QCOMPARE(count(shown(inside), look::Focus), 12);
    }

    void marksAreTwiceAsThick()
    {
        const auto underline = [] {
            QImage square(40, 40, QImage::Format_RGB32);
            square.fill(White);
            QPainter painter(&square);
            ui::drawHere(painter, QRectF(0, 0, 40, 40), 2);
            return count(square.copy(20, 0, 1, 40), look::Focus);
        };
        const auto tick = [] {
            QImage square(60, 60, QImage::Format_RGB32);
            square.fill(look::Ink);
            QPainter painter(&square);
            ui::drawRightDisc(painter, QRectF(0, 0, 60, 60));
            return count(square, White);
        };
        const int usualTick = tick();
        QCOMPARE(underline(), 4);
        ask(look::Contrast::High);
        QCOMPARE(underline(), 8);
        QVERIFY(tick() > 1.5 * usualTick);
    }

    void quietTextsAreOfInk()
    {
        QWidget* counters = screen->countersBox(
            u"Counters"_s, {300, 2250, 3600, 600}, u"Ejercicios: 0"_s, {.pixels = 24});
        new ui::QuietText(screen->title);
        for (QWidget* text : {counters, static_cast<QWidget*>(screen->title)}) {
            ask(look::Contrast::Usual);
            text->raise();
            const QImage usual = text->grab().toImage();
            QVERIFY(count(usual, look::Quiet) > 0);
            QCOMPARE(count(usual, look::Ink), 0);
            ask(look::Contrast::High);
            const QImage high = text->grab().toImage();
            QVERIFY(count(high, look::Ink) > 0);
            QCOMPARE(count(high, look::Quiet), 0);
        }
    }

    void aRetiredVerdictIsOfInk()
    {
        ui::VerdictBox verdict(screen->canvas());
        verdict.setFont(look::scaled(look::Verdict, 2));
        verdict.setGeometry(0, 0, 400, 80);
        verdict.show();
        verdict.setVerdict(u"Resultado"_s, ui::VerdictBox::Mark::Right);
        verdict.retire();
        QCOMPARE(count(verdict.grab().toImage(), look::Ink), 0);
        ask(look::Contrast::High);
        QVERIFY(count(verdict.grab().toImage(), look::Ink) > 0);
        verdict.setVerdict(u"Resultado"_s, ui::VerdictBox::Mark::None);
        ask(look::Contrast::Usual);
        QVERIFY(count(verdict.grab().toImage(), look::Ink) > 0);
    }

    void allIsAsBeforeWithoutIt()
    {
        screen->entry->setFocus();
        const QImage before = screen->grab().toImage();
        ask(look::Contrast::High);
        QVERIFY(screen->grab().toImage() != before);
        ask(look::Contrast::Usual);
        QVERIFY(screen->grab().toImage() == before);
    }

private:
    static void ask(look::Contrast contrast)
    {
        look::setContrast(contrast);
        runPendingEvents();
    }
    QRect placeOf(const QWidget& control) const
    {
        return {control.mapTo(screen, QPoint()), control.size()};
    }
    /// A line of pixels across the left edge of a control.
    QRect across(const QWidget& control) const
    {
        constexpr int Beside = 24;
        const QRect place = placeOf(control);
        return {place.left() - Beside, place.center().y(), 2 * Beside, 1};
    }
    QImage shown(const QRect& part) const { return screen->grab().toImage().copy(part); }

    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(HighContrastTest)
#include "high_contrast_test.moc"
