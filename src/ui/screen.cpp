#include "ui/screen.h"

#include "ui/announcement.h"
#include "ui/screens.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QWindow>

#include <utility>

using namespace Qt::StringLiterals;

namespace ui {

Screen::Screen(
    Screens& screens, const QString& name, const QString& caption, double width, double height)
    : ScaledWindow(width, height)
    , HandlerGuard(static_cast<QWidget&>(*this), screens.clock())
    , KeyHandlers(static_cast<HandlerGuard&>(*this))
    , SignalHandlers(static_cast<HandlerGuard&>(*this), static_cast<QObject&>(*this))
    , m_screens(screens)
{
    setObjectName(name);
    setWindowTitle(caption);
    auto* close = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_F4), this);
    connect(close, &QShortcut::activated, this, [this] { this->close(); });
}

Screen::~Screen()
{
    shut(); // no handler starts while the controls go
    delete canvas(); // while what listens to its controls is still there
}

QTimer* Screen::timer(const QString& name, int milliseconds)
{
    auto* timer = new QTimer(this);
    timer->setObjectName(name);
    timer->setInterval(milliseconds);
    return timer;
}

void Screen::beep()
{
    QApplication::beep();
}

// --- life

void Screen::load()
{
    m_loading = true;
    Form_Load();
    m_loading = false;
    nameRepeatKey();
    comeUp();
}

/// Where the pupil starts: a reader says a description each time that its control is reached.
void Screen::nameRepeatKey()
{
    if (QWidget* first = focusWidget(); first != nullptr && !spokenExercise().isEmpty())
        first->setAccessibleDescription(u"F2 repite el ejercicio"_s);
}

void Screen::openOver(const Screen& below)
{
    if (!m_activated && !m_loading)
        comeUp(below.factor());
}

void Screen::showModal(Screen& owner, std::function<void()> whenClosed)
{
    m_whenClosed = std::move(whenClosed);
    setWindowModality(Qt::ApplicationModal);
    winId(); // makes the window, so that it can be tied to its owner's
    owner.winId();
    windowHandle()->setTransientParent(owner.windowHandle());
    show();
    activateWindow();
}

void Screen::unload()
{
    if (isUnloaded())
        return;
    run([this] { Form_QueryUnload(); }); // also while a handler waits
    leave();
}

void Screen::leave()
{
    if (isUnloaded()) // a handler of QueryUnload was faster
        return;
    shut();
    for (QTimer* timer : findChildren<QTimer*>())
        timer->stop();
    hide();
    emit unloaded();
    if (!isRunning()) {
        tellClosed();
        deleteLater();
    }
}

void Screen::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (!isUnloaded())
        closeRequested();
}

void Screen::showEvent(QShowEvent* event)
{
    ScaledWindow::showEvent(event);
    if (m_activated || event->spontaneous())
        return;
    m_activated = true;
    QMetaObject::invokeMethod(this, &Screen::takeUp, Qt::QueuedConnection);
}

void Screen::takeUp()
{
    guarded([this] { Form_Activate(); });
    m_up = true;
    sayExercise();
    for (const QString& text : std::exchange(m_toSay, {}))
        say(text);
}

void Screen::hideEvent(QHideEvent* event)
{
    ScaledWindow::hideEvent(event);
    if (event->spontaneous() || isRunning() || isUnloaded())
        return;
    // As a handler: whom it tells may open a box, and the screen must outlive its hiding.
    run([this] { tellClosed(); });
}

bool Screen::tellClosed()
{
    const auto told = std::exchange(m_whenClosed, {});
    if (told)
        told();
    return told != nullptr;
}

// --- handlers

bool Screen::finishHandlers()
{
    return !isVisible() && tellClosed();
}

void Screen::handlersEnded()
{
    deleteLater();
}

void Screen::report(const QString& text)
{
    MessageBox::show(*this, text);
}

// --- speech

void Screen::say(const QString& text)
{
    if (!m_up)
        m_toSay << text; // behind the exercise
    else if (!isUnloaded())
        announce(*this, text);
}

void Screen::sayExercise()
{
    if (m_up)
        say(spokenExercise());
}

void Screen::keyPressEvent(QKeyEvent* event)
{
    // Behind the handlers: whatever they do at any key, they do at this one too.
    if (event->key() == Qt::Key_F2 && event->modifiers() == Qt::NoModifier)
        sayExercise();
    else
        ScaledWindow::keyPressEvent(event);
}

} // namespace ui
