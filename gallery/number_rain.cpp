#include "gallery.h"
#include "pictures.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QSet>
#include <QtTest>

using namespace Qt::StringLiterals;
using gallery::Stage;

namespace {

const QString Form = u"Form5"_s;

/// Plays number rain as a pupil who knows the rule and has all the time in the world.
class Player {
public:
    explicit Player(Stage& stage)
        : m_stage(stage)
    {
        QObject::connect(&m_boxes, &QTimer::timeout, &m_boxes, [] {
            if (auto* box = QApplication::activeModalWidget())
                if (auto* button = box->findChild<QPushButton*>())
                    button->click();
        });
    }

    void start()
    {
        m_stage.click(u"CbEmpezar"_s);
        timer().stop();
    }

    void tick() { QMetaObject::invokeMethod(&timer(), "timeout", Qt::DirectConnection); }

    /// Lets numbers fall until so many are on the screen, of all five classes, with lives lost
    /// where need be.
    void fill(int count)
    {
        m_boxes.start(1);
        while (drops().size() < count || colours().size() < 5) {
            if (drop(u"CbEmpezar"_s).isVisible())
                start();
            tick();
        }
        m_boxes.stop();
    }

    /// Hits right numbers only; closes the boxes.
    void playToPhase(int phase)
    {
        m_boxes.start(1);
        while (this->phase() < phase) {
            if (drop(u"CbEmpezar"_s).isVisible())
                start();
            tick();
            for (QPushButton* number : drops())
                if (isTarget(number->text().toInt()) && number->isVisible())
                    QTest::mouseClick(number, Qt::LeftButton);
        }
        m_boxes.stop();
        start();
    }

    /// A number of this kind on the screen; nullptr when there is none.
    QPushButton* find(bool target) const
    {
        const auto numbers = drops();
        const auto found = std::ranges::find_if(numbers,
            [&](QPushButton* number) { return isTarget(number->text().toInt()) == target; });
        return found != numbers.end() ? *found : nullptr;
    }

    /// Ticks once and hits a number of this kind, if there is one; one of the two may open a
    /// box, which is photographed and answered.
    void hit(bool target, const QString& answer)
    {
        m_stage.photographBox(
            [&] {
                tick();
                if (QPushButton* number = find(target))
                    QTest::mouseClick(number, Qt::LeftButton);
            },
            answer);
    }

    QSet<QRgb> colours() const
    {
        QSet<QRgb> result;
        for (const QPushButton* number : drops())
            result << number->palette().color(QPalette::Active, QPalette::Button).rgb();
        return result;
    }

private:
    QTimer& timer() const { return m_stage.control<QTimer>(u"Timer1"_s); }
    QPushButton& drop(const QString& name) const { return m_stage.control<QPushButton>(name); }

    QList<QPushButton*> drops() const
    {
        QList<QPushButton*> result;
        for (int slot = 0; slot < 20; ++slot)
            if (QPushButton& number = drop(u"CbNave(%1)"_s.arg(slot)); number.isVisible())
                result << &number;
        return result;
    }

    int phase() const { return m_stage.screen().windowTitle().section(u' ', -1).toInt(); }
    bool isTarget(int number) const
    {
        return phase() == 1 ? number % 2 == 1 : number % phase() == 0;
    }

    Stage& m_stage;
    QTimer m_boxes;
};

/// Hits wrong numbers until so many lives are lost; the last box is photographed.
void photographLostLife(Stage& stage, int lives)
{
    stage.pick(u"MnuOpcMod(1)"_s);
    Player player(stage);
    for (int life = 1; life <= lives; ++life) {
        player.start();
        stage.picture = {};
        while (stage.picture.isNull())
            player.hit(false, life < 3 ? u"Aceptar"_s : u"Sí"_s);
    }
}

} // namespace

void gallery::addNumberRain(Gallery& gallery)
{
    gallery.add(u"lluvia-espera"_s, Form);
    gallery.add(u"lluvia-fase-1"_s, Form, [](Stage& stage) {
        Player player(stage);
        player.start();
        player.fill(8);
    });
    gallery.add(u"lluvia-fase-12"_s, Form, [](Stage& stage) {
        Player player(stage);
        player.playToPhase(12);
        player.fill(8);
    });
    gallery.add(u"lluvia-fase-superada"_s, Form, [](Stage& stage) {
        Player player(stage);
        player.playToPhase(2);
        while (stage.picture.isNull())
            player.hit(true, u"Aceptar"_s);
    });
    gallery.add(u"lluvia-vida"_s, Form, [](Stage& stage) { photographLostLife(stage, 1); });
    gallery.add(u"lluvia-game-over"_s, Form, [](Stage& stage) { photographLostLife(stage, 3); });
}
