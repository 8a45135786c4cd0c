#pragma once

#include "activities.h"
#include "core/random.h"
#include "support/fake_clock.h"
#include "ui/screen_set.h"

#include <QDir>
#include <QTemporaryDir>

/// The whole program, on a folder of its own with the problem bank and the pictures of cars.
struct ProgramBench {
    ProgramBench()
        : screens(random, clock, folder.path())
    {
        const QDir source(QString::fromUtf8(PIZARRIN_RESOURCES));
        for (const QString& name : source.entryList(QDir::Files)) {
            if (!QFile::copy(source.filePath(name), folder.filePath(name)))
                qFatal("%s cannot be copied", qPrintable(name));
        }
        addScreens(screens);
    }

    core::SeededRandom random;
    FakeClock clock;
    QTemporaryDir folder;
    ui::ScreenSet screens;
};

/// Every screen of the program, by name.
inline QStringList screenNames()
{
    return ProgramBench().screens.names();
}

/// The menu's way out, behind its activities.
inline QString wayOut()
{
    return QStringLiteral("Command1(%1)").arg(activities().size());
}

/// The screens of the activities, by name.
inline QStringList activityScreens()
{
    QStringList names;
    for (const shell::Activity& activity : activities())
        names << activity.screen;
    return names;
}

/// The same without some, each of which must be one.
inline QStringList activityScreensBut(const QStringList& left)
{
    QStringList names = activityScreens();
    for (const QString& name : left) {
        if (!names.removeOne(name))
            qFatal("%s is no activity", qPrintable(name));
    }
    return names;
}

/// The dialogs that activities open: every screen but theirs and the menu.
inline const QStringList& dialogs()
{
    static const QStringList names = [] {
        QStringList others = screenNames();
        others.removeOne(QStringLiteral("Form1"));
        for (const shell::Activity& activity : activities())
            others.removeOne(activity.screen);
        if (others.isEmpty())
            qFatal("no dialogs");
        return others;
    }();
    return names;
}
