#include <QProcess>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The program as it is started from outside.
class OptionsTest : public QObject {
    Q_OBJECT

private slots:
    void optionsOfTheToolkitChangeNothing()
    {
        QProcess program;
        program.start(QString::fromUtf8(PIZARRIN_PROGRAM),
            {u"-platform"_s, u"offscreen"_s, u"-qwindowtitle"_s, u"Otro"_s, u"-reverse"_s});
        QVERIFY(program.waitForStarted());
        // Its window is on this display and has its own title.
        const int found = QProcess::execute(u"timeout"_s,
            {u"60"_s, u"xdotool"_s, u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--name"_s,
                u"^PIZARRIN$"_s});
        program.terminate();
        program.waitForFinished();
        QCOMPARE(found, 0);
    }
};

QTEST_GUILESS_MAIN(OptionsTest)
#include "options_test.moc"
