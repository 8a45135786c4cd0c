#include "ui/display_event.h"

#include <cstring>

namespace ui {

namespace {

using Kind = DisplayEvent::Kind;

template <typename Number> Number numberAt(const void* message, std::size_t offset)
{
    Number number = 0;
    std::memcpy(&number, static_cast<const char*>(message) + offset, sizeof number);
    return number;
}

// --- X11

/// A request to take the focus or to close: of all messages to a window it alone says nothing
/// after what it wants and the time, but for the one that takes a state from a window. That
/// begins with 0.
bool isRequest(const void* message)
{
    const auto word = [&](std::size_t index) {
        return numberAt<quint32>(message, 12 + 4 * index);
    };
    return word(0) != 0 && word(1) != 0 && word(2) == 0 && word(3) == 0 && word(4) == 0;
}

/// While no window has the keyboard, the one under the pointer is told that it has it, and then
/// that it has lost it: nobody has activated it.
DisplayEvent focusEvent(Kind kind, const void* message)
{
    constexpr quint8 BecauseOfThePointer = 5;
    if (numberAt<quint8>(message, 1) == BecauseOfThePointer)
        return {};
    return {kind, numberAt<quint32>(message, 4)};
}

/// By the X11 protocol: the window stands at another place in each kind of event.
DisplayEvent readX11(const void* message)
{
    constexpr quint8 KeyPress = 2;
    constexpr quint8 ButtonPress = 4;
    constexpr quint8 FocusIn = 9;
    constexpr quint8 FocusOut = 10;
    constexpr quint8 Message = 33;
    constexpr quint8 OfAnExtension = 35;
    constexpr quint16 TouchBegin = 18;
    switch (numberAt<quint8>(message, 0) & 0x7F) {
    case KeyPress:
        return {Kind::Key, numberAt<quint32>(message, 12)};
    case ButtonPress:
        return {Kind::Press, numberAt<quint32>(message, 12)};
    case FocusIn:
        return focusEvent(Kind::Activation, message);
    case FocusOut:
        return focusEvent(Kind::Deactivation, message);
    case Message:
        if (isRequest(message))
            return {Kind::Activation, numberAt<quint32>(message, 4)};
        break;
    case OfAnExtension: // the mouse's buttons have the same number in theirs
        if (const auto event = numberAt<quint16>(message, 8);
            event == ButtonPress || event == TouchBegin)
            return {Kind::Press, numberAt<quint32>(message, 24)};
        break;
    default:
        break;
    }
    return {};
}

// --- Windows

/// A blocked window gets no press, only word of the pointer's place: "nowhere to press", and
/// which button was pressed there.
bool isPressOnDisabled(quint64 place)
{
    constexpr quint16 Nowhere = 0xFFFE;
    constexpr quint16 LeftButton = 0x0201;
    constexpr quint16 RightButton = 0x0204;
    constexpr quint16 MiddleButton = 0x0207;
    const auto button = static_cast<quint16>(place >> 16);
    return static_cast<quint16>(place) == Nowhere
        && (button == LeftButton || button == RightButton || button == MiddleButton);
}

/// The window, the message's number and its two parameters, 8 bytes each.
DisplayEvent readWindows(const void* message)
{
    constexpr quint32 Activate = 0x0006;
    constexpr quint32 SetCursor = 0x0020;
    const auto window = numberAt<quint64>(message, 0);
    switch (numberAt<quint32>(message, 8)) {
    case Activate:
        return {numberAt<quint16>(message, 16) != 0 ? Kind::Activation : Kind::Deactivation,
            static_cast<quintptr>(window)};
    case SetCursor:
        if (isPressOnDisabled(numberAt<quint64>(message, 24)))
            return {Kind::Press, static_cast<quintptr>(window)};
        break;
    default:
        break;
    }
    return {};
}

} // namespace

DisplayEvent readDisplayEvent(const QByteArray& type, const void* message)
{
    if (type == "xcb_generic_event_t")
        return readX11(message);
    if (type == "windows_generic_MSG")
        return readWindows(message);
    return {};
}

} // namespace ui
