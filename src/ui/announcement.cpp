#include "ui/announcement.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <deque>
#include <utility>

namespace ui {

namespace {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

/// From the control that has the focus: of what comes from elsewhere, readers drop the second
/// within a tenth of a second.
void speak(QWidget& window, const QString& text)
{
    QWidget* focused = window.focusWidget();
    QAccessibleAnnouncementEvent event(focused != nullptr ? focused : &window, text);
    QAccessible::updateAccessibility(&event);
}

#else

/// An object that only assistive tools meet: no child of its parent, so that who reads the
/// tree does not come upon it.
class Notice : public QAccessibleInterface {
public:
    Notice(QAccessible::Role role, QAccessibleInterface* parent, QString text)
        : m_role(role)
        , m_parent(parent)
        , m_text(std::move(text))
    {
    }

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return m_parent; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_text : QString();
    }
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return m_role; }
    QAccessible::State state() const override { return {}; }

private:
    QAccessible::Role m_role;
    QAccessibleInterface* m_parent;
    QString m_text;
};

QAccessible::Id add(QAccessible::Role role, QAccessibleInterface* parent, const QString& text)
{
    return QAccessible::registerAccessibleInterface(new Notice(role, parent, text));
}

/// Screen readers read a notification aloud when it appears, and one of a status bar without
/// the word for what it is. They ask for its text a little later, and never again: each text
/// is an object of its own, and the last few of them stay.
void speak(QWidget&, const QString& text)
{
    constexpr std::size_t Kept = 16;
    static std::deque<QAccessible::Id> notices;
    static const QAccessible::Id bar =
        add(QAccessible::StatusBar, QAccessible::queryAccessibleInterface(qApp), {});
    notices.push_back(
        add(QAccessible::Notification, QAccessible::accessibleInterface(bar), text));
    QAccessibleEvent event(
        QAccessible::accessibleInterface(notices.back()), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
    if (notices.size() > Kept) {
        QAccessible::deleteAccessibleInterface(notices.front());
        notices.pop_front();
    }
}

#endif

/// The texts that wait for their window. A reader falls silent when a window is left and when
/// another one comes up: what was sent before would be lost.
class Announcer final : public QObject {
public:
    static Announcer& instance()
    {
        static auto* announcer = new Announcer(qApp);
        return *announcer;
    }

    void add(QWidget& window, const QString& text)
    {
        m_texts.push_back({&window, text});
        deliverLater();
    }

private:
    struct Text {
        QPointer<QWidget> window;
        QString text;
    };

    explicit Announcer(QObject* parent)
        : QObject(parent)
    {
        connect(qApp, &QGuiApplication::focusWindowChanged, this, &Announcer::deliverLater);
    }

    void deliverLater()
    {
        QMetaObject::invokeMethod(this, &Announcer::deliver, Qt::QueuedConnection);
    }

    void deliver()
    {
        while (!m_texts.empty()) {
            const Text next = m_texts.front();
            QWidget* box = QApplication::activeModalWidget();
            QWidget* front = box != nullptr ? box : next.window.data();
            if (next.window && !front->isActiveWindow())
                return;
            m_texts.pop_front();
            if (next.window)
                speak(*front, next.text);
        }
    }

    std::deque<Text> m_texts;
};

} // namespace

void announce(QWidget& control, const QString& text)
{
    if (QAccessible::isActive() && !text.isEmpty())
        Announcer::instance().add(*control.window(), text);
}

} // namespace ui
