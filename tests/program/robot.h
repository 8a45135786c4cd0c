#pragma once

#include "support/watchdog.h"
#include "ui/screen_set.h"

#include <QObject>
#include <QStringList>

#include <random>

class QDialog;
class QWidget;

/// A user at random: clicks, types any character, pastes, picks menu items, answers boxes,
/// lets timers fire, resizes and closes windows. Each step is an event of its own, so that it
/// goes on inside the event loops of boxes. The same seed gives the same walk.
class Robot : public QObject {
public:
    Robot(ui::ScreenSet& screens, unsigned seed, int actions);

    /// Walks until the actions are used up or the program is ended by one of them; returns
    /// the number of actions that are left.
    int run();

    QStringList complaints; ///< boxes that speak of an internal error

private:
    void step();
    void act();
    void actOnBox(QDialog& box);
    void actOnScreen(ui::Screen& screen);
    void click(QWidget& window);
    void type(QWidget& window);
    void paste(QWidget& window);
    void pick(const ui::Screen& screen);
    void tick(const ui::Screen& screen);
    void resize(ui::Screen& screen);
    int draw(int count); ///< 0 to count - 1
    template <typename List> auto any(const List& list);

    ui::ScreenSet& m_screens;
    std::mt19937 m_engine;
    int m_left;
    Watchdog m_watchdog;
};
