#pragma once

#include "ui/display_event.h"

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace ui {

/// Brings the window that blocks all others back in front, restored, when another one is
/// activated, clicked or given a key that is no part of a chord. The toolkit asks for its
/// activation, but leaves it minimised, and tells nobody: so this listens to the display itself.
/// On X11 and Windows.
class BlockedWindows final : public QObject, public QAbstractNativeEventFilter {
public:
    /// Watches the application for as long as it lives.
    explicit BlockedWindows(QObject* application);

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    void focusMoved(DisplayEvent::Kind kind, bool isOfBlocking);
    void settled();

    QTimer m_settling{this}; ///< runs before a blocked window is judged that has the keyboard
    QElapsedTimer m_sinceLoss; ///< of the focus by the blocking window; invalid: by another
    QPointer<QWidget> m_handedOnBy; ///< nobody activated the blocked window: this one's was left
};

} // namespace ui
