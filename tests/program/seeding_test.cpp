#include "activities.h"

#include "core/random.h"
#include "support/car_folder.h"
#include "support/screen_bench.h"

#include <QPlainTextEdit>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

/// The program's own generator, which writes down its seeds.
class LoggedRandom final : public core::RandomSource {
public:
    void seed(double value) override
    {
        seeds.push_back(value);
        m_random.seed(value);
    }
    float next() override { return m_random.next(); }

    std::vector<double> seeds;

private:
    core::SeededRandom m_random;
};

/// What a pupil is given once an activity is under way.
struct Session {
    std::vector<double> seeds;
    QStringList texts;
};

} // namespace

/// Every activity seeds the generator once, when it loads, by the clock alone.
class SeedingTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        copyCarPictures(folder.path());
        QFile::copy(QStringLiteral(PIZARRIN_RESOURCES "/Problemas3.dat"),
            folder.filePath(u"Problemas3.dat"_s));
        screens = std::make_unique<ui::ScreenSet>(random, clock, folder.path());
        addScreens(*screens);
        screens->show(u"Form1"_s);
    }
    void cleanup() { screens.reset(); }

    void aClockThatStandsGivesTheSameExercise_data()
    {
        QTest::addColumn<QString>("name");
        for (const shell::Activity& activity : activities())
            QTest::newRow(qPrintable(activity.screen)) << activity.screen;
    }
    void aClockThatStandsGivesTheSameExercise()
    {
        QFETCH(QString, name);
        clock.now = QTime(10, 20, 30, 500);
        const Session first = session(name);
        QCOMPARE(first.seeds.size(), 1u);
        random.next(); // what was drawn before the load does not count
        const Session second = session(name);
        QCOMPARE(second.seeds, first.seeds);
        QCOMPARE(second.texts, first.texts);

        clock.now = QTime(17, 41, 8, 250);
        const Session later = session(name);
        QCOMPARE(later.seeds.size(), 1u);
        QVERIFY(later.seeds != first.seeds);
        QVERIFY(later.texts != first.texts);
    }

private:
    Session session(const QString& name)
    {
        random.seeds.clear();
        screens->show(name);
        screen = screens->loaded(name);
        begin(name);
        const Session session{random.seeds, texts()};
        screens->unload(name);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return session;
    }

    /// Goes on to the first exercise where the screen does not come up with one.
    void begin(const QString& name)
    {
        if (name == u"Form2"_s) {
            find<QAction>(u"MnuOpcActLis(2)"_s).trigger();
        } else if (name == u"Form8"_s) {
            find<QPushButton>(u"Command1"_s).click();
        } else if (name == u"Form5"_s) {
            find<QPushButton>(u"CbEmpezar"_s).click();
            for (int tick = 0; tick < 6; ++tick)
                QMetaObject::invokeMethod(
                    &find<QTimer>(u"Timer1"_s), "timeout", Qt::DirectConnection);
        } else if (name == u"FrmCarrera"_s) {
            QTRY_VERIFY(screens->loaded(u"DlgCarrera"_s));
            ScreenBench::find<QPushButton>(*screens->loaded(u"DlgCarrera"_s), u"OKButton"_s)
                .click();
        }
    }

    template <typename T> T& find(const QString& name) const
    {
        return ScreenBench::find<T>(*screen, name);
    }

    QStringList texts() const
    {
        QStringList texts;
        for (const QWidget* control : screen->findChildren<QWidget*>()) {
            if (const auto* box = qobject_cast<const QLineEdit*>(control))
                texts << box->text();
            else if (const auto* memo = qobject_cast<const QPlainTextEdit*>(control))
                texts << memo->toPlainText();
            else if (const auto* statement = qobject_cast<const QTextEdit*>(control))
                texts << statement->toPlainText();
            else if (const auto* button = qobject_cast<const QPushButton*>(control))
                texts << button->text();
        }
        return texts;
    }

    LoggedRandom random;
    FakeClock clock;
    QTemporaryDir folder;
    std::unique_ptr<ui::ScreenSet> screens;
    ui::Screen* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(SeedingTest)
#include "seeding_test.moc"
