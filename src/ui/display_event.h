#pragma once

#include <QByteArray>

namespace ui {

/// What the display tells of a window, read from the messages of its system.
struct DisplayEvent {
    enum class Kind { Other, Press, Key, Activation, Deactivation };

    Kind kind = Kind::Other;
    quintptr window = 0; ///< the system's number of the window
};

/// What a message is, as a native event filter of the toolkit gets it: type names the system.
DisplayEvent readDisplayEvent(const QByteArray& type, const void* message);

} // namespace ui
