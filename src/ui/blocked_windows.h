#pragma once

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>
#include <QObject>

class QWindow;

namespace ui {

/// Brings the window that blocks all others back in front, restored, when another one is
/// activated, clicked or given a key. The toolkit asks for its activation, but leaves it
/// minimised, and tells nobody: so this listens to the display itself. On X11 and Windows.
class BlockedWindows final : public QObject, public QAbstractNativeEventFilter {
public:
    /// Watches the application for as long as it lives.
    explicit BlockedWindows(QObject* application);

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    bool isHandedOn() const;
    void activated(bool handedOn);

    QElapsedTimer m_sinceLoss; ///< of the focus by the blocking window; invalid: by another
};

} // namespace ui
