#pragma once

#include "ui/boxes.h"
#include "ui/handler_guard.h"
#include "ui/key_handlers.h"
#include "ui/scaled_window.h"
#include "ui/signal_handlers.h"

#include <functional>

namespace ui {

class Screens;

/// A window of the program, with its life and its handlers.
///
/// Closing a screen unloads it: it is hidden at once, its timers stop, none of its handlers
/// starts any more, and it is destroyed when the last handler that is running has ended.
class Screen : public ScaledWindow,
               public HandlerGuard,
               protected KeyHandlers,
               protected SignalHandlers {
    Q_OBJECT

public:
    ~Screen() override;

    bool isUnloaded() const { return isShut(); }

    /// The exercise as it is said aloud; empty while there is none.
    virtual QString spokenExercise() const { return {}; }

    /// Closes the screen and drops its state.
    void unload();

    // For the set of screens.

    /// Fills the screen, once, and gives it its first size. What Form_Load throws comes through.
    void load();
    bool isLoading() const { return m_loading; }
    /// Before it is first shown: lets it open at most at the factor of the screen below it.
    void openOver(const Screen& below);
    /// Shows the screen; it blocks all others until it is closed or hidden, then runs whenClosed.
    void showModal(Screen& owner, std::function<void()> whenClosed);

signals:
    /// The screen has been hidden for good.
    void unloaded();

protected:
    /// width and height are the canvas's design size in twips.
    Screen(Screens& screens, const QString& name, const QString& caption, double width,
        double height);

    /// Fills the screen, once, before it is first shown.
    virtual void Form_Load() { }
    /// Runs when the screen has come up for the first time.
    virtual void Form_Activate() { }
    /// Runs first when the screen is unloaded, whatever the reason.
    virtual void Form_QueryUnload() { }
    /// What the window's close box and Alt+F4 do; unloads unless a dialog hides instead.
    virtual void closeRequested() { unload(); }

    /// Has a screen reader say a text, behind what the running handler does to the focus.
    void say(const QString& text);
    /// Has it say the exercise: after each new one. The first one is said when the screen
    /// has come up, and F2 says it again.
    void sayExercise();

    /// The computer's beep.
    virtual void beep();

    Screens& screens() const { return m_screens; }

    QTimer* timer(const QString& name, int milliseconds);

    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void report(const QString& text) override;
    bool finishHandlers() override;
    void handlersEnded() override;

    void nameRepeatKey();
    void leave();
    void takeUp();
    bool tellClosed();

    Screens& m_screens;
    std::function<void()> m_whenClosed; ///< set while the screen is shown modally
    bool m_activated = false;
    bool m_up = false; ///< and Form_Activate has run
    QStringList m_toSay; ///< what was to be said before it
    bool m_loading = false; ///< Form_Load is running
};

} // namespace ui
