// A walk of a random user through the whole program. Longer walks by hand:
//   ROBOT_ACTIONS=200000 ROBOT_SEED=7 build/asan/bin/robot_test
#include "robot.h"

#include "activities.h"
#include "core/random.h"
#include "support/screen_bench.h"

#include <QDir>

using namespace Qt::StringLiterals;

class RobotTest : public QObject {
    Q_OBJECT

private slots:
    void walksThroughTheWholeProgram()
    {
        QTemporaryDir folder;
        for (const QFileInfo& file :
            QDir(QString::fromUtf8(PIZARRIN_RESOURCES)).entryInfoList(QDir::Files))
            QVERIFY(QFile::copy(file.filePath(), folder.filePath(file.fileName())));

        int left = setting("ROBOT_ACTIONS", 3000);
        auto seed = static_cast<unsigned>(setting("ROBOT_SEED", 1));
        int programs = 0;
        while (left > 0) {
            core::SeededRandom random;
            FakeClock clock;
            ui::ScreenSet screens(random, clock, folder.path());
            addScreens(screens);
            screens.show(u"Form1"_s);
            Robot robot(screens, seed++, left);
            left = robot.run();
            QCOMPARE(robot.complaints, QStringList());
            ++programs;
        }
        qInfo("%d programs, the last seed %u", programs, seed - 1);
    }

private:
    static int setting(const char* name, int usual)
    {
        bool set = false;
        const int value = qEnvironmentVariableIntValue(name, &set);
        return set ? value : usual;
    }
};

PIZARRIN_SCREEN_TEST_MAIN(RobotTest)
#include "robot_test.moc"
