#pragma once

#include "ui/boxes.h"
#include "ui/button.h"
#include "ui/keys.h"
#include "ui/look.h"
#include "ui/memo.h"
#include "ui/menu_list.h"
#include "ui/placement.h"
#include "ui/text_box.h"
#include "ui/verdict_box.h"

#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <concepts>
#include <functional>
#include <unordered_map>

class QDialog;
class QMenu;
class QMenuBar;

namespace ui {

class Screens;

/// One window of the program: a menu bar, where it has one, over a canvas of a design size
/// in twips. One factor maps twips to pixels; it follows the window, and every control and
/// font on the canvas follows it.
///
/// Closing a screen unloads it: it is hidden at once, its timers stop, none of its handlers
/// starts any more, and it is destroyed when the last handler that is running has ended.
class Screen : public QWidget {
public:
    ~Screen() override;

    double factor() const { return m_factor; }

    /// The screen that a control or box belongs to; nullptr when there is none.
    static const Screen* of(const QWidget* widget);
    /// The factor of the screen that a control or box belongs to; 1 when there is none.
    static double factorOf(const QWidget* widget);

    bool isUnloaded() const { return m_unloaded; }

    /// Closes the screen and drops its state.
    void unload();

    /// Runs a handler: an exception that leaves it is shown in one box, the handler is
    /// abandoned, the screen stays as it was. Does nothing on an unloaded screen or while
    /// another handler of the screen waits for a box.
    void guarded(const std::function<void()>& body);

    /// Lets pending events run in the middle of a handler. No other handler of the screen
    /// starts meanwhile, but it can be unloaded: then ScreenUnloaded is thrown.
    void letEventsRun();

    /// While one of these lives, a handler of the screen waits, for a box where there is one,
    /// which is closed when the screen is unloaded. Its end throws ScreenUnloaded when the
    /// screen is gone.
    class Waiting {
    public:
        Waiting(Screen& screen, QDialog* box);
        ~Waiting() noexcept(false);
        Waiting(const Waiting&) = delete;
        Waiting& operator=(const Waiting&) = delete;

    private:
        Screen& m_screen;
        QPointer<QDialog> m_outer; ///< the box that another handler waits for
        int m_exceptions;
    };

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

    Screens& screens() const { return m_screens; }
    QWidget* canvas() const { return m_canvas; }
    double designWidth() const { return m_designWidth; }
    double designHeight() const { return m_designHeight; }

    /// Gives the canvas another design size (twips). The window grows or shrinks with it at
    /// the same factor, and moves up where it would leave the display; where the display is
    /// too small, the factor gives way.
    void setDesignSize(double width, double height);

    // Controls. Places are in twips on the canvas, or in the frame that the control was made
    // on; names are object names, an element of an array with its index: u"Command2(0)"_s.

    /// Names, places and dresses a control that was made on canvas() or on a frame there.
    template <typename Control>
    Control* add(Control* control, const QString& name, const TwipRect& place,
        const look::Font& font = look::Instruction)
    {
        addControl(control, name, place, font);
        return control;
    }
    TextBox* entryBox(const QString& name, const TwipRect& place, const look::Font& font,
        const QString& accessibleName);
    TextBox* displayBox(const QString& name, const TwipRect& place, const look::Font& font,
        const QString& accessibleName, const QString& text = {});
    VerdictBox* verdictBox(
        const QString& name, const TwipRect& place, const QString& accessibleName);
    /// An entry box of several lines.
    Memo* memo(const QString& name, const TwipRect& place, const look::Font& font,
        const QString& accessibleName);
    /// A text of several lines that is only shown.
    Memo* displayMemo(const QString& name, const TwipRect& place, const look::Font& font,
        const QString& accessibleName, const QString& text = {});
    Button* button(const QString& name, const QString& caption, const TwipRect& place,
        const QColor& fill, const look::Font& font = look::Command);
    /// A caption; with a buddy its access key leads there.
    QLabel* label(const QString& name, const QString& caption, const TwipRect& place,
        const look::Font& font = look::Instruction, QWidget* buddy = nullptr);
    QTimer* timer(const QString& name, int milliseconds);

    TwipRect placeOf(const QWidget* control) const;
    void place(QWidget* control, const TwipRect& place);
    void moveTo(QWidget* control, double left, double top);
    void setControlFont(QWidget* control, const look::Font& font);

    // Menus. A menu's own action carries the menu's name. Picking an item never changes its
    // check mark by itself: the handler does.

    QMenu* menu(const QString& name, const QString& caption);
    QMenu* submenu(QMenu* parent, const QString& name, const QString& caption);
    QAction* item(QMenu* parent, const QString& name, const QString& caption);
    /// An item that stands on the menu bar by itself.
    QAction* barItem(const QString& name, const QString& caption);
    QAction* checkItem(QMenu* parent, const QString& name, const QString& caption);
    /// Check items name(0), name(1) … with these captions; the first is checked.
    MenuList menuList(QMenu* parent, const QString& name, const QStringList& captions);
    /// Captions "&first" to "&last".
    static QStringList numberedCaptions(int first, int last);

    // Handlers, all guarded.

    template <typename Sender, typename Signal, typename Derived, typename... Args>
    void on(Sender* sender, Signal signal, void (Derived::*handler)(Args...))
    {
        auto* self = static_cast<Derived*>(this);
        connect(sender, signal, this,
            [self, handler](Args... args) { self->guarded([&] { (self->*handler)(args...); }); });
    }
    template <typename Sender, typename Signal, std::invocable Handler>
    void on(Sender* sender, Signal signal, Handler handler)
    {
        connect(sender, signal, this,
            [this, handler = std::move(handler)] { guarded([&] { handler(); }); });
    }
    /// For an element of a control array: the handler receives the index.
    template <typename Sender, typename Signal, typename Derived>
    void on(Sender* sender, Signal signal, void (Derived::*handler)(int), int index)
    {
        auto* self = static_cast<Derived*>(this);
        connect(sender, signal, this,
            [self, handler, index] { self->guarded([&] { (self->*handler)(index); }); });
    }
    /// For every item of a menu list.
    template <typename Derived> void onList(const MenuList& list, void (Derived::*handler)(int))
    {
        for (int i = 0; i < list.size(); ++i)
            on(list.at(i), &QAction::triggered, handler, i);
    }
    /// On the screen itself: the keys that no control has used.
    void onKeyDown(QWidget* control, KeyFilter::DownHandler handler);
    void onKeyPress(QWidget* control, KeyFilter::PressHandler handler);
    void onKeyUp(QWidget* control, KeyFilter::UpHandler handler);
    /// Enter (both Enter keys) in a box runs the handler and is swallowed.
    void onEnter(QWidget* control, std::function<void()> handler);
    void onGotFocus(QWidget* control, std::function<void()> handler);

    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    friend class Screens;

    struct Control {
        TwipRect place;
        look::Font font;
    };

    void addControl(
        QWidget* control, const QString& name, const TwipRect& place, const look::Font& font);
    void applyPlace(QWidget* control, const Control& entry) const;
    KeyFilter* keyFilter(QWidget* control);
    KeyResult guardedKey(const std::function<KeyResult()>& body);
    void run(const std::function<void()>& body);
    void leave();
    void endHandler();
    void tellClosed();
    void report(const QString& text);
    void comeUp();
    void resizeToDesign(double factor);
    void keepOnDisplay();
    void scaleTo(double factor);
    void layOut();
    double menuBarPixels() const;
    QMenuBar* menuBar();
    template <typename Item> Item* named(Item* item, const QString& name);

    Screens& m_screens;
    QWidget* m_canvas;
    QMenuBar* m_menuBar = nullptr;
    double m_designWidth;
    double m_designHeight;
    double m_factor = 1;
    double m_factorGivenWay = 0; ///< the factor meant, while the display is too small for it
    QSize m_ownSize; ///< the last size that the screen gave itself
    std::unordered_map<const QWidget*, Control> m_controls;
    std::unordered_map<const QWidget*, KeyFilter*> m_keyFilters;
    QPointer<QDialog> m_box; ///< the box that a handler waits for
    std::function<void()> m_whenClosed; ///< set while the screen is shown modally
    int m_runningHandlers = 0;
    int m_waiting = 0;
    bool m_reporting = false;
    bool m_unloaded = false;
    bool m_activated = false;
    bool m_loading = false; ///< Form_Load is running
};

} // namespace ui
