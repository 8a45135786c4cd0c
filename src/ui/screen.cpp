#include "ui/screen.h"

#include "core/errors.h"
#include "ui/focus_ring.h"
#include "ui/screens.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <cmath>
#include <exception>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr double MenuHeight = 8700 / TwipsPerPixel; // what the factor of all screens goes by
constexpr double SmallestFactor = 0.5;

/// Runs a callback when the watched control gets the focus. Getting it back from a box, a
/// menu or another program is no news: the control had it all the time as far as its screen
/// is concerned.
class FocusFilter final : public QObject {
public:
    FocusFilter(QObject* control, std::function<void()> handler)
        : QObject(control)
        , m_handler(std::move(handler))
    {
        control->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusOut)
            m_lent = isLoan(event);
        else if (event->type() == QEvent::FocusIn
            && !(std::exchange(m_lent, false) && isLoan(event)))
            m_handler();
        return QObject::eventFilter(watched, event);
    }

private:
    static bool isLoan(const QEvent* event)
    {
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason
            || reason == Qt::MenuBarFocusReason;
    }

    std::function<void()> m_handler;
    bool m_lent = false;
};

} // namespace

Screen::Screen(
    Screens& screens, const QString& name, const QString& caption, double width, double height)
    : m_screens(screens)
    , m_canvas(new QWidget(this))
    , m_designWidth(width)
    , m_designHeight(height)
{
    setObjectName(name);
    setWindowTitle(caption);
    new FocusRing(m_canvas);
    auto* close = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_F4), this);
    connect(close, &QShortcut::activated, this, [this] { this->close(); });
}

Screen::~Screen()
{
    m_unloaded = true; // no handler starts while the controls go
    delete m_canvas; // while the entries of its controls are still there to be erased
}

const Screen* Screen::of(const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto* screen = dynamic_cast<const Screen*>(widget))
            return screen;
    }
    return nullptr;
}

double Screen::factorOf(const QWidget* widget)
{
    const Screen* screen = of(widget);
    return screen != nullptr ? screen->factor() : 1;
}

// --- life

void Screen::unload()
{
    if (m_unloaded)
        return;
    run([this] { Form_QueryUnload(); }); // also while a handler waits
    leave();
}

void Screen::leave()
{
    if (m_unloaded) // a handler of QueryUnload was faster
        return;
    m_unloaded = true;
    for (QTimer* timer : findChildren<QTimer*>())
        timer->stop();
    if (m_box)
        m_box->done(QDialog::Rejected);
    hide();
    m_screens.forget(*this);
    if (m_runningHandlers == 0) {
        tellClosed();
        deleteLater();
    }
}

void Screen::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (!m_unloaded)
        closeRequested();
}

void Screen::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_activated || event->spontaneous())
        return;
    m_activated = true;
    QMetaObject::invokeMethod(
        this, [this] { guarded([this] { Form_Activate(); }); }, Qt::QueuedConnection);
}

void Screen::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous() || m_runningHandlers > 0 || m_unloaded)
        return;
    ++m_runningHandlers; // whom it tells may open a box: the screen must outlive its hiding
    tellClosed();
    endHandler();
}

void Screen::tellClosed()
{
    if (const auto told = std::exchange(m_whenClosed, {}))
        told();
}

// --- handlers

void Screen::guarded(const std::function<void()>& body)
{
    if (!m_unloaded && m_waiting == 0)
        run(body);
}

void Screen::run(const std::function<void()>& body)
{
    QString text;
    ++m_runningHandlers;
    try {
        body();
    } catch (const ScreenUnloaded&) {
        // The screen went while its handler waited: there is nothing left to tell.
    } catch (const core::Error& error) {
        text = error.text();
    } catch (const std::exception& error) {
        text = u"Error interno: %1"_s.arg(QString::fromUtf8(error.what()));
    } catch (...) {
        text = u"Error interno"_s;
    }
    if (!text.isEmpty()) // behind the catch blocks: the box runs an event loop of its own
        report(text);
    endHandler();
}

void Screen::endHandler()
{
    if (--m_runningHandlers > 0)
        return;
    if (!isVisible())
        tellClosed();
    if (m_unloaded)
        deleteLater();
}

void Screen::report(const QString& text)
{
    if (m_unloaded || std::exchange(m_reporting, true))
        return;
    try {
        MessageBox::show(*this, text);
    } catch (const ScreenUnloaded&) {
        return;
    }
    m_reporting = false;
}

void Screen::letEventsRun()
{
    const Waiting waiting(*this, nullptr);
    QCoreApplication::processEvents();
}

Screen::Waiting::Waiting(Screen& screen, QDialog* box)
    : m_screen(screen)
    , m_exceptions(std::uncaught_exceptions())
{
    m_outer = std::exchange(m_screen.m_box, box);
    ++m_screen.m_waiting;
    ++m_screen.m_runningHandlers; // the screen must outlive the box whoever opened it
}

Screen::Waiting::~Waiting() noexcept(false)
{
    m_screen.m_box = m_outer;
    --m_screen.m_waiting;
    const bool gone = m_screen.isUnloaded();
    m_screen.endHandler();
    if (gone && std::uncaught_exceptions() == m_exceptions)
        throw ScreenUnloaded();
}

KeyFilter* Screen::keyFilter(QWidget* control)
{
    KeyFilter*& filter = m_keyFilters[control];
    if (filter == nullptr) {
        filter = new KeyFilter(control);
        if (control != this) // the screen's own map is gone before it says that it is
            connect(control, &QObject::destroyed, this,
                [this, control] { m_keyFilters.erase(control); });
    }
    return filter;
}

KeyResult Screen::guardedKey(const std::function<KeyResult()>& body)
{
    KeyResult result = KeyResult::Swallow; // what a failed handler leaves behind
    guarded([&] { result = body(); });
    return result;
}

void Screen::onKeyDown(QWidget* control, KeyFilter::DownHandler handler)
{
    keyFilter(control)->down = [this, handler = std::move(handler)](
                                   int code, Qt::KeyboardModifiers modifiers) {
        return guardedKey([&] { return handler(code, modifiers); });
    };
}

void Screen::onKeyPress(QWidget* control, KeyFilter::PressHandler handler)
{
    keyFilter(control)->press = [this, handler = std::move(handler)](QChar character) {
        return guardedKey([&] { return handler(character); });
    };
}

void Screen::onKeyUp(QWidget* control, KeyFilter::UpHandler handler)
{
    keyFilter(control)->up = [this, handler = std::move(handler)](
                                 int code, Qt::KeyboardModifiers modifiers) {
        guarded([&] { handler(code, modifiers); });
    };
}

void Screen::onEnter(QWidget* control, std::function<void()> handler)
{
    onKeyPress(control, [handler = std::move(handler)](QChar character) {
        if (character != QChar(key::Enter))
            return KeyResult::Pass;
        handler();
        return KeyResult::Swallow;
    });
}

void Screen::onGotFocus(QWidget* control, std::function<void()> handler)
{
    new FocusFilter(control, [this, handler = std::move(handler)] { guarded(handler); });
}

// --- size

double Screen::menuBarPixels() const
{
    return m_menuBar != nullptr ? look::MenuBarHeight : 0;
}

void Screen::setDesignSize(double width, double height)
{
    m_designWidth = width;
    m_designHeight = height;
    if (isMaximized() || isFullScreen()) {
        layOut();
        return;
    }
    resizeToDesign(m_factorGivenWay > 0 ? m_factorGivenWay : m_factor);
    keepOnDisplay();
}

void Screen::keepOnDisplay()
{
    const QRect available = screen()->availableGeometry();
    const int below = std::max(0, frameGeometry().bottom() - available.bottom());
    const int beside = std::max(0, frameGeometry().right() - available.right());
    if (isVisible() && (below > 0 || beside > 0))
        move(std::max(available.left(), x() - beside), std::max(available.top(), y() - below));
}

void Screen::comeUp()
{
    const QRect available = screen()->availableGeometry();
    resizeToDesign(Screens::initialFactor(MenuHeight, available.height()));
    // The window manager's frame stands above the canvas: it counts when centring.
    const int frame = static_cast<int>(Screens::FrameHeight);
    move(available.x() + (available.width() - width()) / 2,
        available.y() + std::max(0, (available.height() - height() - frame) / 2));
}

void Screen::resizeToDesign(double factor)
{
    const double width = m_designWidth / TwipsPerPixel;
    const double height = m_designHeight / TwipsPerPixel + menuBarPixels();
    const QSize available = screen()->availableGeometry().size();
    const double fitting = std::min({factor, available.width() / width,
        (available.height() - Screens::FrameHeight) / height});
    const auto pixels = [](double length) { return static_cast<int>(std::ceil(length)); };
    const double smallest = std::min(SmallestFactor, fitting);
    setMinimumSize(pixels(width * smallest), pixels(height * smallest));
    m_ownSize = QSize(pixels(width * fitting), pixels(height * fitting));
    resize(m_ownSize);
    layOut(); // the size may be the same, the design not
    m_factorGivenWay = fitting < factor ? factor : 0; // resizing has forgotten it
}

void Screen::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->size() != m_ownSize)
        m_factorGivenWay = 0; // a person has chosen another size
    layOut();
}

void Screen::layOut()
{
    const double designWidth = m_designWidth / TwipsPerPixel;
    const double designHeight = m_designHeight / TwipsPerPixel + menuBarPixels();
    double factor = std::min(width() / designWidth, height() / designHeight);
    // Whole pixels hardly ever give a round factor: within a pixel of one, it is meant.
    const double quarter = std::round(factor * 4) / 4;
    if (std::abs(factor - quarter) * std::max(designWidth, designHeight) < 1.5)
        factor = quarter;
    scaleTo(factor);

    const int barHeight = static_cast<int>(std::lround(menuBarPixels() * factor));
    if (m_menuBar != nullptr)
        m_menuBar->setGeometry(0, 0, width(), barHeight);
    QRect area = toPixels({0, 0, m_designWidth, m_designHeight}, factor);
    area.moveTo(std::max(0, (width() - area.width()) / 2),
        barHeight + std::max(0, (height() - barHeight - area.height()) / 2));
    m_canvas->setGeometry(area);
}

void Screen::scaleTo(double factor)
{
    if (factor == m_factor)
        return;
    m_factor = factor;
    for (const auto& [control, entry] : m_controls)
        applyPlace(const_cast<QWidget*>(control), entry);
    if (m_menuBar == nullptr)
        return;
    const QFont font = look::scaled(look::Instruction, factor);
    m_menuBar->setFont(font);
    for (QMenu* menu : m_menuBar->findChildren<QMenu*>())
        menu->setFont(font);
}

void Screen::applyPlace(QWidget* control, const Control& entry) const
{
    control->setFont(look::scaled(entry.font, m_factor));
    if (auto* scalable = dynamic_cast<Scalable*>(control))
        scalable->setFactor(m_factor);
    control->setGeometry(toPixels(entry.place, m_factor));
}

} // namespace ui
