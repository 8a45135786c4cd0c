#pragma once

#include <QtTest>

/// Types a text into a control, key by key; any character, where QTest::keyClicks knows
/// only those of a plain keyboard.
inline void typeInto(QWidget* control, const QString& text)
{
    for (QChar character : text) {
        if (character < QChar(0x80))
            QTest::keyClick(control, character.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, QString(character), {});
    }
}
