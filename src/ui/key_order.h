#pragma once

#include <QObject>
#include <QPointer>

#include <deque>
#include <memory>

class QEvent;
class QKeyEvent;

namespace ui {

/// Lets keys act in the order in which they were pressed beside a screen reader. The toolkit
/// shows every key to the reader first and delivers it a little later; an access key it carries
/// out at once, before the digits that were typed ahead of it. Here that one waits for them.
class KeyOrder final : public QObject {
public:
    /// Watches the application for as long as it lives.
    explicit KeyOrder(QObject* application);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A key that is on its way; an access key that waits has what it does.
    struct Press {
        int number = 0;
        quint32 key = 0;
        QPointer<QObject> owner;
        std::unique_ptr<QEvent> shortcut;
    };

    bool postpone(QObject* owner, const QEvent& shortcut);
    void arrive(const QKeyEvent& event);
    void carryOutFirst();
    void takeFirst();

    std::deque<Press> m_presses; ///< in the order in which they were made
    int m_lastNumber = 0;
    const QEvent* m_carriedOut = nullptr;
};

} // namespace ui
