// Whole games of number rain, played at random and watched, and what the motion of both games
// costs the computer. Usage: games_bench [seconds for each drawing]

#include "core/clock.h"
#include "core/errors.h"
#include "core/random.h"
#include "games/night_sky.h"
#include "games/number_rain_screen.h"
#include "games/race_options_screen.h"
#include "games/race_screen.h"
#include "games/rain_field.h"
#include "ui/application.h"
#include "ui/screen_set.h"

#include <QAnimationDriver>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <cstdio>
#include <ctime>
#include <random>

using namespace games;
using namespace Qt::StringLiterals;

namespace {

constexpr int Games = 10000;
constexpr int Height = 7260; // of the sky, in twips
constexpr double Width = 17040;

/// A display, and the factors at which the games open there.
struct Display {
    const char* name;
    double rain;
    double race;
};
constexpr std::array Displays{Display{"1366x768", 1.2, 1.5}, Display{"3840x2160", 3.35, 4.35}};

/// A player who clicks now and then, at whatever there is.
class RandomPlayer {
public:
    explicit RandomPlayer(unsigned seed)
        : m_engine(seed)
        , m_idleness(6 + seed % 5 * 15)
        , m_rain(m_random, Height)
    {
        m_random.seed(seed);
        m_rain.chooseDifficulty(static_cast<Difficulty>(seed % 3));
    }

    /// Plays until the game is over or its points leave 16 bits; false when an invariant broke.
    bool play()
    {
        while (!m_rain.over() && !full && m_holds) {
            if (m_rain.waiting())
                m_rain.start();
            take(m_rain.tick(), u"Has dejado escapar");
            ++ticks;
            if (m_engine() % m_idleness == 0)
                click(static_cast<int>(m_engine() % RainFall::Slots));
        }
        return m_holds;
    }

    long ticks = 0;
    long boxes = 0;
    bool full = false; ///< the next hit would bring more points than are counted

private:
    void click(int slot)
    {
        const core::Int16 before = m_rain.state().Puntos;
        try {
            take(m_rain.click(slot), u"Has cometido");
        } catch (const core::OverflowError&) {
            full = true;
            check(m_rain.state().Puntos == before);
        }
    }

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
    int full = 0;
    const std::clock_t start = std::clock();
    for (unsigned game = 0; game < Games; ++game) {
        RandomPlayer player(game + 1);
        broken += player.play() ? 0 : 1;
        full += player.full ? 1 : 0;
        ticks += player.ticks;
        boxes += player.boxes;
    }
    const double cpu = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    std::printf(
        "%d games, %ld ticks, %ld boxes: %.3f s, %d broken, %d until the points left 16 bits\n",
        Games, ticks, boxes, cpu, broken, full);
}

/// Twenty numbers under the night sky, all of the fastest class on Hard: each falls a row in
/// every tick. More than the rules ever bring together.
class Downpour final : public ui::Screen {
public:
    static QString screenName() { return u"Downpour"_s; }

    explicit Downpour(ui::Screens& screens)
        : Screen(screens, screenName(), screenName(), Width, Height)
        , m_sky(new NightSky(this))
        , m_field(new RainField(*this, this))
    {
        m_sky->stackUnder(canvas());
        canvas()->setAutoFillBackground(false);
        for (int slot = 0; slot < RainFall::Slots; ++slot) {
            Gota& gota = m_gotas.at(static_cast<std::size_t>(slot));
            gota.Columna = 1 + slot;
            gota.Fila = 7 * slot % Rows;
            gota.Velocidad = Gota::Fastest;
            gota.Valor = 101 + slot;
            m_field->make(slot);
            m_field->launch(slot, gota);
        }
        QTimer* clock = timer(u"clock"_s, Tick.count());
        on(clock, &QTimer::timeout, &Downpour::fall);
        clock->start();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        Screen::resizeEvent(event);
        m_sky->setFactor(factor());
        m_sky->cover(canvas()->geometry(), 700 * factor());
    }

private:
    static constexpr int Rows = 13;
    static constexpr std::chrono::milliseconds Tick{300};

    void fall()
    {
        for (int slot = 0; slot < RainFall::Slots; ++slot) {
            Gota& gota = m_gotas.at(static_cast<std::size_t>(slot));
            gota.Fila = (gota.Fila + 1) % Rows;
            if (gota.Fila == 0)
                m_field->launch(slot, gota);
            else
                m_field->flow(slot, gota, Tick);
        }
    }

    NightSky* m_sky;
    RainField* m_field;
    std::array<Gota, RainFall::Slots> m_gotas;
};

/// The clock of the animations, moved by hand: however busy the machine is, no frame is left
/// out.
class FrameClock final : public QAnimationDriver {
public:
    static constexpr int Frame = 16; // milliseconds, as of the toolkit's own clock

    FrameClock() { install(); }
    ~FrameClock() override { uninstall(); }

    void pass()
    {
        m_elapsed += Frame;
        advance();
        QCoreApplication::processEvents(); // paints
    }

    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    qint64 m_elapsed = 0;
};

/// Share of one core that the motion of a screen takes at a factor: processor time by the time
/// that the frames stand for. The ticks of its timer come in that time too.
void measureMotion(
    const char* what, ui::Screen& screen, const QString& timerName, double factor, int seconds)
{
    screen.resize((QSizeF(screen.size()) * factor / screen.factor()).toSize());
    auto& timer = *screen.findChild<QTimer*>(timerName);
    timer.stop();
    FrameClock clock;
    int tick = 0; // milliseconds to the next one
    const auto run = [&](int milliseconds) {
        for (int time = 0; time < milliseconds; time += FrameClock::Frame) {
            if ((tick -= FrameClock::Frame) <= 0) {
                tick += timer.interval();
                QMetaObject::invokeMethod(&timer, "timeout", Qt::DirectConnection);
            }
            clock.pass();
        }
    };
    run(1000); // pictures are drawn once
    const std::clock_t start = std::clock();
    run(1000 * seconds);
    const double cpu = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    std::printf("  %s, factor %.2f (%d x %d pixels): %.2f %% of a core\n", what, screen.factor(),
        screen.width(), screen.height(), 100 * cpu / seconds);
}

void measureRain(ui::ScreenSet& screens, double factor, int seconds)
{
    screens.add<Downpour>();
    screens.show(u"Downpour"_s);
    measureMotion("20 numbers of class 5 on Hard", *screens.loaded(u"Downpour"_s), u"clock"_s,
        factor, seconds);
    screens.unload(u"Downpour"_s);
}

/// The quickest rival on his way, once the first product is answered.
void measureRace(ui::ScreenSet& screens, double factor, int seconds)
{
    screens.add<FrmCarrera>();
    screens.add<DlgCarrera>();
    screens.show(u"FrmCarrera"_s);
    ui::Screen& race = *screens.loaded(u"FrmCarrera"_s);
    QCoreApplication::processEvents();
    screens.loaded(u"DlgCarrera"_s)->findChild<QPushButton*>(u"OKButton"_s)->click();
    const QStringList parts = race.findChild<QLineEdit*>(u"TBOperación"_s)->text().split(u' ');
    auto* answer = race.findChild<QLineEdit*>(u"TBResultado"_s);
    answer->setText(QString::number(parts.at(0).toInt() * parts.at(2).toInt()));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QCoreApplication::sendEvent(answer, &enter);
    race.findChild<QTimer*>(u"Timer1"_s)->stop();
    constexpr int LongestRace = 20; // seconds that the quickest rival has left
    measureMotion(
        "the quickest rival's car", race, u"Timer2"_s, factor, std::min(seconds, LongestRace));
    screens.unload(u"FrmCarrera"_s);
}

void measureDrawing(int seconds)
{
    for (const Display& display : Displays) {
        core::SeededRandom random;
        const core::SystemClock clock;
        ui::ScreenSet screens(random, clock, QString::fromUtf8(PIZARRIN_RESOURCES));
        std::printf("as on a display of %s:\n", display.name);
        measureRain(screens, display.rain, seconds);
        measureRace(screens, display.race, seconds);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    ui::ignoreDesktopSettings();
    const QApplication application(argc, argv);
    ui::setUpApplication();
    measureGames();
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 10;
    if (seconds > 0)
        measureDrawing(seconds);
    return 0;
}
