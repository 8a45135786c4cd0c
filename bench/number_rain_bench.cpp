// Whole games of the model, played at random and watched, and what the falling numbers cost
// the computer. Usage: number_rain_bench [seconds for each drawing]

#include "core/clock.h"
#include "core/random.h"
#include "games/night_sky.h"
#include "games/number_rain_screen.h"
#include "games/rain_drop.h"
#include "ui/application.h"
#include "ui/glide.h"
#include "ui/screens.h"

#include <QAction>
#include <QApplication>
#include <QEventLoop>

#include <cstdio>
#include <ctime>
#include <random>

using namespace games;
using namespace Qt::StringLiterals;

namespace {

constexpr int Games = 10000;

/// A player who clicks now and then, at whatever there is.
class RandomPlayer {
public:
    explicit RandomPlayer(unsigned seed)
        : m_engine(seed)
        , m_idleness(6 + seed % 5 * 15)
        , m_rain(m_random, 9270)
    {
        m_random.seed(seed);
        m_rain.chooseDifficulty(static_cast<Difficulty>(seed % 3));
    }

    /// Plays until the game is over; false when an invariant broke.
    bool play()
    {
        while (!m_rain.over() && m_holds) {
            if (m_rain.waiting())
                m_rain.start();
            take(m_rain.tick(), u"Has dejado escapar");
            ++ticks;
            if (m_engine() % m_idleness == 0)
                take(m_rain.click(static_cast<int>(m_engine() % RainState::Slots)),
                    u"Has cometido");
        }
        return m_holds;
    }

    long ticks = 0;
    long boxes = 0;

private:
    void take(RainStep step, QStringView cause)
    {
        while (step.box) {
            ++boxes;
            check(matches(*step.box, cause));
            step = m_rain.answer(false);
        }
        const RainState& state = m_rain.state();
        check(state.Puntos >= 0 && state.Vidas >= 0 && state.Vidas <= 3);
        check(m_rain.over() || (state.Vidas >= 1 && m_rain.running() != m_rain.waiting()));
    }

    bool matches(const RainBox& box, QStringView cause) const
    {
        switch (box.kind) {
        case RainBox::Kind::PhasePassed:
            return box.title == u"FASE SUPERADA"_s && m_rain.state().Aciertos >= 15
                && cause == u"Has cometido";
        case RainBox::Kind::LifeLost:
            return box.text.startsWith(cause) && m_rain.state().Vidas >= 1;
        case RainBox::Kind::GameOver:
            return box.title == u"GAME OVER"_s && m_rain.state().Vidas == 0;
        }
        return false;
    }

    void check(bool condition) { m_holds = m_holds && condition; }

    std::minstd_rand m_engine;
    unsigned m_idleness; ///< ticks from click to click, on average
    core::SeededRandom m_random;
    NumberRain m_rain;
    bool m_holds = true;
};

void measureGames()
{
    long ticks = 0;
    long boxes = 0;
    int broken = 0;
    const std::clock_t start = std::clock();
    for (unsigned game = 0; game < Games; ++game) {
        RandomPlayer player(game + 1);
        broken += player.play() ? 0 : 1;
        ticks += player.ticks;
        boxes += player.boxes;
    }
    const double cpu = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    std::printf(
        "%d games, %ld ticks, %ld boxes: %.3f s, %d broken\n", Games, ticks, boxes, cpu, broken);
}

/// Twenty numbers under the night sky, all of the fastest class on Hard: each falls a row in
/// every tick. More than the rules ever bring together.
class Downpour final : public ui::Screen {
public:
    static QString screenName() { return u"Downpour"_s; }

    explicit Downpour(ui::Screens& screens)
        : Screen(screens, screenName(), screenName(), 11010, 9270)
        , m_sky(new NightSky(this))
        , m_glide(new ui::Glide(
              [this](QWidget* control, double left, double top) { moveTo(control, left, top); },
              this))
    {
        m_sky->lower();
        for (int i = 0; i < RainState::Slots; ++i) {
            auto* drop = new RainDrop(canvas());
            add(drop, u"drop(%1)"_s.arg(i),
                {500.0 * (1 + i), 780 + 500.0 * (7 * i % 17), RainDrop::Width, RainDrop::Height},
                {ui::look::Family::CourierNew, RainDrop::digitPixels(u"120"_s), true});
            drop->setText(QString::number(101 + i));
            drop->setFill(QColor::fromHsv(18 * i, 255, 255));
            m_drops.push_back(drop);
        }
        QTimer* clock = timer(u"clock"_s, 300);
        on(clock, &QTimer::timeout, &Downpour::fall);
        clock->start();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        Screen::resizeEvent(event);
        m_sky->setFactor(factor());
        m_sky->setGeometry(rect());
    }

private:
    void fall()
    {
        for (RainDrop* drop : m_drops) {
            const ui::TwipRect from = placeOf(drop);
            const double top = from.top + 500;
            if (top > 9270)
                m_glide->put(drop, {from.left, 780});
            else
                m_glide->send(drop, {from.left, from.top}, {from.left, top});
        }
    }

    NightSky* m_sky;
    ui::Glide* m_glide;
    std::vector<RainDrop*> m_drops;
};

/// Share of one core that the program takes while a screen of this factor runs by itself.
void measureScreen(const char* what, ui::Screen& screen, double factor, int seconds)
{
    screen.resize((QSizeF(screen.size()) * factor / screen.factor()).toSize());
    const auto run = [](int milliseconds) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    };
    run(2000); // come up and settle
    const std::clock_t start = std::clock();
    run(1000 * seconds);
    const double cpu = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    std::printf("%s, factor %.2f (%d x %d pixels): %.2f %% of a core\n", what, screen.factor(),
        screen.width(), screen.height(), 100 * cpu / seconds);
}

/// Closes the box that is open, starts the rain when it waits.
void keepGoing(const ui::Screen& game)
{
    if (const auto* box = QApplication::activeModalWidget()) {
        box->findChild<QPushButton*>()->click();
        return;
    }
    auto* start = game.findChild<QPushButton*>(u"CbEmpezar"_s);
    if (start->isVisible())
        start->click();
}

void measureDrawing(int seconds)
{
    for (const double factor : {1.0, 3.0}) {
        core::SeededRandom random;
        const core::SystemClock clock;
        ui::Screens screens(random, clock, {});
        screens.add<Downpour>();
        screens.add<Form5>();
        screens.show(u"Downpour"_s);
        measureScreen(
            "20 numbers of class 5 on Hard", *screens.loaded(u"Downpour"_s), factor, seconds);
        screens.unload(u"Downpour"_s);
        screens.show(u"Form5"_s);
        ui::Screen& game = *screens.loaded(u"Form5"_s);
        game.findChild<QAction*>(u"MnuOpcMod(2)"_s)->trigger();
        QTimer keeper;
        QObject::connect(&keeper, &QTimer::timeout, &game, [&game] { keepGoing(game); });
        keeper.start(100);
        measureScreen("a game on Hard that nobody plays", game, factor, seconds);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    ui::prepareApplication();
    const QApplication application(argc, argv);
    ui::dress();
    measureGames();
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 10;
    if (seconds > 0)
        measureDrawing(seconds);
    return 0;
}
