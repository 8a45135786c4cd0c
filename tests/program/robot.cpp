#include "robot.h"

#include "support/program_bench.h"
#include "support/typing.h"
#include "ui/screen.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds LongestStep(60); // before the walk counts as hung

const QStringList Texts{u"0"_s, u"7"_s, u"12"_s, u"144"_s, u"-3"_s, u"2,5"_s, u"99999999999"_s,
    u"-2147483648"_s, u"1e9"_s, u"nan"_s, u"inf"_s, u"ñandú"_s, u"漢字"_s, u"😀"_s, u"a\nb\r\nc"_s,
    u"\t"_s, u"|"_s, u"& 1"_s, u"[2_9]"_s, u"{&1*&2}"_s, u"{1/0}"_s, u"((((("_s, u"<b>x</b>"_s,
    QString(3000, u'9')};

const QList<Qt::Key> Keys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Delete,
    Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Tab,
    Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Shift, Qt::Key_Control, Qt::Key_F5,
    Qt::Key_F1};

} // namespace

Robot::Robot(ui::ScreenSet& screens, unsigned seed, int actions)
    : m_screens(screens)
    , m_engine(seed)
    , m_left(actions)
    , m_watchdog(LongestStep)
{
}

int Robot::run()
{
    QMetaObject::invokeMethod(
        this, [this] { step(); }, Qt::QueuedConnection);
    QApplication::exec();
    QCoreApplication::removePostedEvents(this);
    return m_left;
}

int Robot::draw(int count)
{
    return static_cast<int>(m_engine() % static_cast<unsigned>(count));
}

template <typename List> auto Robot::any(const List& list)
{
    return list.at(draw(static_cast<int>(list.size())));
}

void Robot::step()
{
    m_watchdog.feed();
    if (m_left-- <= 0) {
        m_left = 0;
        m_screens.unload(u"Form1"_s);
        return;
    }
    // Before the action: a box that it opens runs the next steps.
    QMetaObject::invokeMethod(
        this, [this] { step(); }, Qt::QueuedConnection);
    act();
}

void Robot::act()
{
    if (auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        popup->close();
        return;
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QDialog*>(modal)) {
        actOnBox(*box);
        return;
    }
    QList<ui::Screen*> shown;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* screen = dynamic_cast<ui::Screen*>(window);
        if (screen != nullptr && screen->isVisible() && (modal == nullptr || modal == screen))
            shown << screen;
    }
    if (!shown.isEmpty())
        actOnScreen(*any(shown));
}

void Robot::actOnBox(QDialog& box)
{
    if (const auto* message = qobject_cast<QMessageBox*>(&box)) {
        if (message->text() == ui::HandlerGuard::mistakeText())
            complaints << message->text();
    }
    switch (draw(4)) {
    case 0:
        type(box);
        break;
    case 1:
        paste(box);
        break;
    default:
        click(box);
        break;
    }
}

void Robot::actOnScreen(ui::Screen& screen)
{
    const int kind = draw(100);
    if (kind < 35)
        click(screen);
    else if (kind < 70)
        type(screen);
    else if (kind < 75)
        paste(screen);
    else if (kind < 85)
        pick(screen);
    else if (kind < 97)
        tick(screen);
    else if (kind < 98)
        resize(screen);
    else if (screen.objectName() != u"Form1"_s || draw(20) == 0)
        screen.close();
}

void Robot::click(QWidget& window)
{
    QList<QWidget*> targets;
    for (QWidget* child : window.findChildren<QWidget*>()) {
        const bool wanted = qobject_cast<QAbstractButton*>(child) != nullptr
            || qobject_cast<QLineEdit*>(child) != nullptr
            || qobject_cast<QAbstractItemView*>(child) != nullptr;
        if (wanted && child->isVisible() && child->isEnabled() && child->window() == &window)
            targets << child;
    }
    if (targets.isEmpty())
        return;
    QWidget* target = any(targets);
    if (auto* list = qobject_cast<QAbstractItemView*>(target)) {
        const QPoint place(draw(std::max(1, list->width())), draw(std::max(1, list->height())));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        return;
    }
    // The menu's way out, less often than the ways in.
    if (target->objectName() == wayOut() && draw(20) != 0)
        return;
    QTest::mouseClick(target, Qt::LeftButton);
}

void Robot::type(QWidget& window)
{
    QWidget* focus = QApplication::focusWidget();
    QWidget* target = focus != nullptr && focus->window() == &window ? focus : &window;
    switch (draw(4)) {
    case 0: {
        const auto modifier = draw(10) == 0 ? Qt::ControlModifier : Qt::NoModifier;
        QTest::keyClick(target, any(Keys), modifier);
        break;
    }
    case 1:
        typeInto(target, any(Texts).left(12).remove(u'\n').remove(u'\r').remove(u'\t'));
        break;
    default:
        QTest::keyClick(target, static_cast<char>('0' + draw(10)));
        break;
    }
}

void Robot::paste(QWidget& window)
{
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr || focus->window() != &window)
        return;
    QApplication::clipboard()->setText(any(Texts));
    QTest::keyClick(focus, Qt::Key_V, Qt::ControlModifier);
}

void Robot::pick(const ui::Screen& screen)
{
    QList<QAction*> items;
    for (QAction* action : screen.findChildren<QAction*>()) {
        if (!action->objectName().isEmpty() && action->menu() == nullptr && action->isEnabled())
            items << action;
    }
    if (!items.isEmpty())
        any(items)->trigger();
}

void Robot::tick(const ui::Screen& screen)
{
    const auto timers = screen.findChildren<QTimer*>();
    if (timers.isEmpty())
        return;
    QTimer* timer = any(timers);
    if (timer->isActive())
        QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
}

void Robot::resize(ui::Screen& screen)
{
    screen.resize(200 + draw(1800), 200 + draw(1200));
}
