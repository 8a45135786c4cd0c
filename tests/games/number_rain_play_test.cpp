#include "core/defect.h"
#include "core/random.h"
#include "games/number_rain.h"

#include <QtTest>

#include <random>

using games::Difficulty;
using games::Gota;
using games::NumberRain;
using games::RainBox;
using games::RainFall;
using games::RainState;
using games::RainStep;
using namespace Qt::StringLiterals;

namespace {

using Gotas = std::array<Gota, RainFall::Slots>;

constexpr int LastRow = 16;

/// Keeps the books of a game from what happens to it, without asking the model: which numbers
/// escape in a tick, what that costs, which box must open and what must be free after it.
class Bookkeeper {
public:
    explicit Bookkeeper(Difficulty difficulty)
        : m_escape(difficulty == Difficulty::Dificil ? 40 : 5)
        , m_error(difficulty == Difficulty::Facil ? 1 : 10)
    {
    }

    bool isTarget(int number) const { return fase == 1 ? number % 2 == 1 : number % fase == 0; }

    /// What an escape must lead to.
    std::optional<RainBox::Kind> escape(const Gota& gota, int& beeps)
    {
        if (isTarget(gota.Valor.value())) {
            puntos -= m_escape * gota.Velocidad.value();
            ++beeps;
        }
        return checkPoints();
    }

    /// What a click must lead to.
    std::optional<RainBox::Kind> click(const Gota& gota)
    {
        if (!isTarget(gota.Valor.value())) {
            puntos -= m_error * gota.Velocidad.value();
            return checkPoints();
        }
        puntos += 10 * gota.Velocidad.value();
        if (++aciertos < 15)
            return {};
        total += puntos;
        return RainBox::Kind::PhasePassed;
    }

    QString title(RainBox::Kind kind) const
    {
        return kind == RainBox::Kind::PhasePassed ? u"FASE SUPERADA"_s
            : kind == RainBox::Kind::GameOver     ? u"GAME OVER"_s
                                                  : u"Lluvia de números"_s;
    }

    QString text(RainBox::Kind kind, bool porError) const
    {
        if (kind == RainBox::Kind::PhasePassed)
            return u"Ha superado la fase %1.\nEn esta fase ha conseguido %2 puntos y en total "
                   "lleva %3 puntos acumulados."_s.arg(fase)
                       .arg(puntos)
                       .arg(total);
        if (kind == RainBox::Kind::GameOver)
            return u"En esta partida has conseguido %1 puntos. \n¿Deseas volver a jugar?"_s.arg(
                total);
        return (porError ? u"Has cometido demasiados errores y pierdes una vida. "_s
                         : u"Has dejado escapar demasiados números y pierdes una vida. "_s)
            + u"Deberás volver a empezar esta fase."_s;
    }

    void boxClosed(RainBox::Kind kind)
    {
        puntos = 100;
        if (kind == RainBox::Kind::PhasePassed)
            ++fase;
        if (kind == RainBox::Kind::GameOver) {
            fase = 1;
            total = 0;
            vidas = 3;
        }
    }

    int fase = 1;
    int puntos = 100;
    int total = 0;
    int vidas = 3;
    int aciertos = 0;

private:
    std::optional<RainBox::Kind> checkPoints()
    {
        if (puntos >= 0)
            return {};
        puntos = 100;
        return --vidas < 1 ? RainBox::Kind::GameOver : RainBox::Kind::LifeLost;
    }

    int m_escape;
    int m_error;
};

/// Plays whole games at random and holds the model to the books after every call.
class RandomPlayer {
public:
    RandomPlayer(std::uint32_t seed, Difficulty difficulty)
        : m_engine(seed)
        , m_rain(m_random, LastRow)
        , m_books(difficulty)
    {
        m_random.seed(seed);
        m_rain.chooseDifficulty(difficulty);
        m_clumsiness = static_cast<int>(m_engine() % 4);
        m_laziness = 2 + 40 * static_cast<int>(m_engine() % 4);
    }

    /// Plays until a game is over; throws with what is broken. Gives up after so many ticks.
    bool play(int ticks)
    {
        while (ticks-- > 0 && !m_rain.over()) {
            if (m_rain.waiting())
                m_rain.start();
            tick();
            if (!m_rain.over() && static_cast<int>(m_engine()) % m_laziness == 0)
                click();
        }
        return m_rain.over();
    }

    int boxes() const { return m_boxes; }

private:
    static void hold(bool condition, const char* what)
    {
        if (!condition)
            throw std::runtime_error(what);
    }

    const RainState& state() const { return m_rain.state(); }

    bool escapes(const Gota& gota) const
    {
        return gota.Espera.value() == 1 && gota.Fila.value() + 1 > LastRow;
    }

    void tick()
    {
        const Gotas before = m_rain.fall().Gotas();
        std::array<bool, RainFall::Slots> taken;
        for (int slot = 0; slot < RainFall::Slots; ++slot)
            core::at(taken, slot) = !core::at(m_rain.fall().Libre(), slot);
        RainStep step = m_rain.tick();
        int beeps = 0;
        for (int slot = 0; slot < RainFall::Slots; ++slot) {
            if (!core::at(taken, slot) || !escapes(core::at(before, slot)))
                continue;
            const auto box = m_books.escape(core::at(before, slot), beeps);
            if (box) {
                hold(step.beeps == beeps, "beeps before a box");
                beeps = 0;
                hold(!core::at(m_rain.fall().Libre(), slot), "the escaped number behind its box");
                step = answer(step, *box, false);
                std::fill_n(taken.begin(), 10, false);
                if (m_rain.over())
                    return;
            }
            core::at(taken, slot) = false;
        }
        hold(step.beeps == beeps, "beeps");
        hold(!step.box, "a box without a cause");
        checkLaunch(taken, before);
        check();
    }

    void checkLaunch(const std::array<bool, RainFall::Slots>& taken, const Gotas& before)
    {
        m_ticks = (m_ticks + 1) % 6;
        bool due = m_ticks == 0;
        for (int slot = 0; slot < RainFall::Slots; ++slot) {
            const Gota& gota = core::at(m_rain.fall().Gotas(), slot);
            const bool launched = due && !core::at(taken, slot);
            hold(!core::at(m_rain.fall().Libre(), slot) == (core::at(taken, slot) || launched),
                "which slots are taken");
            if (launched) {
                due = false;
                hold(gota.Fila == 0 && gota.Columna >= 1 && gota.Columna <= 19, "launch place");
                hold(gota.Velocidad >= 1 && gota.Velocidad <= 5, "launch class");
                const int last =
                    m_rain.phase().Fase() <= 2 ? 20 : 10 * m_rain.phase().Fase().value();
                hold(gota.Valor >= 1 && gota.Valor <= last, "launch number");
            } else if (core::at(taken, slot)) {
                checkMove(core::at(before, slot), gota);
            }
        }
    }

    static void checkMove(const Gota& before, const Gota& after)
    {
        const bool stepped = before.Espera == 1;
        hold(after.Fila == before.Fila + (stepped ? 1 : 0), "a row at a time");
        const bool drifts = stepped && before.Deriva > 0;
        const int sideways = after.Columna.value() - before.Columna.value();
        hold(std::abs(sideways) == (drifts ? 1 : 0), "a column at a time");
        hold(after.Columna >= 1, "the left edge");
        hold(!(before.Columna == 10 && sideways > 0), "the right-hand bounce");
        hold(after.Valor == before.Valor && after.Velocidad == before.Velocidad, "the number");
    }

    void click()
    {
        const int slot = static_cast<int>(m_engine() % RainFall::Slots);
        if (core::at(m_rain.fall().Libre(), slot)) {
            const auto before = m_rain.pointsText();
            hold(!m_rain.click(slot).box && m_rain.pointsText() == before, "a free slot");
            return;
        }
        const Gota gota = core::at(m_rain.fall().Gotas(), slot);
        if (!m_books.isTarget(gota.Valor.value())
            && static_cast<int>(m_engine() % 4) > m_clumsiness)
            return;
        const RainStep step = m_rain.click(slot);
        const auto box = m_books.click(gota);
        hold(step.box.has_value() == box.has_value(), "a box after a click");
        if (box) {
            hold(!core::at(m_rain.fall().Libre(), slot), "the clicked number behind the box");
            answer(step, *box, true);
            if (!m_rain.over())
                hold(core::at(m_rain.fall().Libre(), slot) == (slot < 10),
                    "the clicked number after the box");
        } else {
            hold(core::at(m_rain.fall().Libre(), slot) == (m_books.puntos > 0),
                "exactly no points");
        }
        if (!m_rain.over())
            check();
    }

    RainStep answer(const RainStep& step, RainBox::Kind kind, bool porError)
    {
        ++m_boxes;
        hold(step.box && step.box->kind == kind, "the kind of a box");
        hold(step.box->title == m_books.title(kind), "the title of a box");
        hold(step.box->text == m_books.text(kind, porError), "the text of a box");
        hold(!m_rain.running() && !m_rain.waiting(), "the clock behind a box");
        const auto points = m_rain.pointsText();
        m_rain.tick();
        m_rain.click(static_cast<int>(m_engine() % RainFall::Slots));
        hold(m_rain.pointsText() == points, "calls behind a box");
        m_books.boxClosed(kind);
        return m_rain.answer(kind != RainBox::Kind::GameOver || m_engine() % 4 == 0);
    }

    void check() const
    {
        hold(state().Puntos == m_books.puntos && state().Puntos >= 0, "points");
        hold(state().PuntosTotales == m_books.total, "points in all");
        hold(state().Vidas == m_books.vidas, "lives");
        hold(state().Vidas >= 1 && state().Vidas <= 3, "lives in range");
        hold(m_rain.phase().Fase() == m_books.fase, "phase");
        hold(state().Aciertos == m_books.aciertos, "hits");
        hold(state().Lanzados >= 0, "launched");
        hold(m_rain.running() != m_rain.waiting(), "clock or button");
        hold(m_rain.caption().endsWith(QString::number(m_books.fase)), "caption");
        const QString points = QString::number(m_books.puntos);
        hold(m_rain.pointsText() == points || m_rain.pointsText() == points + u" puntos"_s,
            "points on show");
        hold(m_rain.livesText().endsWith(QString::number(m_books.vidas)), "lives on show");
    }

    std::mt19937 m_engine; ///< the player's own choices
    core::SeededRandom m_random;
    NumberRain m_rain;
    Bookkeeper m_books;
    int m_clumsiness; ///< 0 to 3: how often the player shoots at wrong numbers
    int m_laziness; ///< one shot at this many ticks, on average
    int m_ticks = 0;
    int m_boxes = 0;
};

} // namespace

/// Whole games played at random, watched by a second, independent reckoning.
class NumberRainPlayTest : public QObject {
    Q_OBJECT

private slots:
    void randomGamesKeepEveryInvariant_data()
    {
        QTest::addColumn<Difficulty>("difficulty");
        QTest::newRow("easy") << Difficulty::Facil;
        QTest::newRow("normal") << Difficulty::Normal;
        QTest::newRow("hard") << Difficulty::Dificil;
    }

    void randomGamesKeepEveryInvariant()
    {
        QFETCH(Difficulty, difficulty);
        int over = 0;
        int boxes = 0;
        for (std::uint32_t seed = 1; seed <= 400; ++seed) {
            RandomPlayer player(seed, difficulty);
            try {
                over += player.play(2000) ? 1 : 0;
            } catch (const std::exception& broken) {
                QFAIL(
                    qPrintable(u"game %1: %2"_s.arg(seed).arg(QString::fromUtf8(broken.what()))));
            }
            boxes += player.boxes();
        }
        QVERIFY2(over > 200, qPrintable(QString::number(over)));
        QVERIFY2(boxes > 1000, qPrintable(QString::number(boxes)));
    }
};

QTEST_GUILESS_MAIN(NumberRainPlayTest)
#include "number_rain_play_test.moc"
