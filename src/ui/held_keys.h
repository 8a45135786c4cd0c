#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <optional>
#include <unordered_map>

class QKeyEvent;

namespace ui {

/// Lets a key that is held down act once, in every window of the application. Its repeats
/// only move a caret or erase, and only in the control that it was pressed in. A key that is
/// down when another window gets the keyboard means nothing until it has been released, and
/// Alt+F4 closes one window.
class HeldKeys final : public QObject {
public:
    /// Watches the application for as long as it lives.
    explicit HeldKeys(QObject* application);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Press {
        QPointer<QObject> control; ///< that it was meant for
        quint64 pressedAt = 0; ///< its time stamp
        bool down = true;
        bool dead = false; ///< another window has got the keyboard since
        std::optional<quint64> releasedAt; ///< the time stamp of its last release
    };

    bool pressCounts(const QKeyEvent& event);
    bool releaseCounts(const QKeyEvent& event);
    bool isRepeat(const QKeyEvent& event) const;
    bool closeCounts();

    std::unordered_map<quint32, Press> m_presses; ///< by key
    QTimer m_altF4{this}; ///< runs while the next request to close would be of the same keys
};

} // namespace ui
