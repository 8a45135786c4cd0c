#include "support/screen_bench.h"
#include "ui/opening_factor.h"
#include "ui/scaled_window.h"

using namespace Qt::StringLiterals;

namespace {

constexpr ui::look::Font EntryFont{ui::look::Family::Andika, 20};

class Window : public ui::ScaledWindow {
public:
    Window()
        : ScaledWindow(4500, 3000)
    {
        menu(u"MnuOpc"_s, u"&Opciones"_s);
        entry = entryBox(u"Entry"_s, {300, 450, 1500, 600}, EntryFont, {});
    }

    using ScaledWindow::canvas;
    using ScaledWindow::comeUp;
    using ScaledWindow::setDesignSize;

    ui::TextBox* entry;
};

} // namespace

/// A window whose controls grow with it, which needs neither a screen nor handlers.
class ScaledWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init() { window = std::make_unique<Window>(); }

    void comesUpAsLargeAsItsDisplayAllows()
    {
        window->comeUp();
        const QSize free = window->screen()->availableGeometry().size();
        QCOMPARE(window->factor(), ui::openingFactor({300, 200 + 28}, free));
        verifyEntry();
    }

    void comesUpNoLargerThanItIsTold()
    {
        window->comeUp(1);
        QCOMPARE(window->factor(), 1.0);
        QCOMPARE(window->size(), QSize(300, 200 + 28));
        verifyEntry();
    }

    void everythingFollowsItsSize()
    {
        window->comeUp(1);
        window->show(); // a hidden window hears of its new size only then
        window->resize(window->size() * 2);
        QCOMPARE(window->factor(), 2.0);
        QCOMPARE(window->canvas()->size(), QSize(600, 400));
        verifyEntry();
    }

    void aLargerDesignKeepsTheFactor()
    {
        window->comeUp(1);
        window->setDesignSize(4500, 4500);
        QCOMPARE(window->factor(), 1.0);
        QCOMPARE(window->size(), QSize(300, 300 + 28));
    }

private:
    void verifyEntry() const
    {
        QCOMPARE(
            window->entry->geometry(), ui::toPixels({300, 450, 1500, 600}, window->factor()));
        QCOMPARE(window->entry->font().pixelSize(),
            ui::look::scaled(EntryFont, window->factor()).pixelSize());
    }

    std::unique_ptr<Window> window;
};

PIZARRIN_SCREEN_TEST_MAIN(ScaledWindowTest)
#include "scaled_window_test.moc"
