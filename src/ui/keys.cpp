#include "ui/keys.h"

#include <QKeyEvent>

#include <array>

namespace ui {

namespace {

struct KeyPair {
    int qtKey;
    int code;
};

constexpr std::array NamedKeys{
    KeyPair{Qt::Key_Backspace, key::Backspace},
    KeyPair{Qt::Key_Tab, key::Tab},
    KeyPair{Qt::Key_Backtab, key::Tab},
    KeyPair{Qt::Key_Return, key::Enter},
    KeyPair{Qt::Key_Enter, key::Enter},
    KeyPair{Qt::Key_Shift, key::Shift},
    KeyPair{Qt::Key_Control, key::Control},
    KeyPair{Qt::Key_Alt, key::Alt},
    KeyPair{Qt::Key_AltGr, key::Alt},
    KeyPair{Qt::Key_Pause, 19},
    KeyPair{Qt::Key_CapsLock, 20},
    KeyPair{Qt::Key_Escape, key::Escape},
    KeyPair{Qt::Key_Space, key::Space},
    KeyPair{Qt::Key_PageUp, 33},
    KeyPair{Qt::Key_PageDown, 34},
    KeyPair{Qt::Key_End, key::End},
    KeyPair{Qt::Key_Home, key::Home},
    KeyPair{Qt::Key_Left, key::Left},
    KeyPair{Qt::Key_Up, key::Up},
    KeyPair{Qt::Key_Right, key::Right},
    KeyPair{Qt::Key_Down, key::Down},
    KeyPair{Qt::Key_Print, 44},
    KeyPair{Qt::Key_Insert, 45},
    KeyPair{Qt::Key_Delete, key::Delete},
    KeyPair{Qt::Key_Meta, 91},
    KeyPair{Qt::Key_Super_L, 91},
    KeyPair{Qt::Key_Super_R, 92},
    KeyPair{Qt::Key_Menu, 93},
    KeyPair{Qt::Key_NumLock, 144},
    KeyPair{Qt::Key_ScrollLock, 145},
    KeyPair{Qt::Key_Plus, 187},
    KeyPair{Qt::Key_Comma, key::Comma},
    KeyPair{Qt::Key_Semicolon, key::Comma},
    KeyPair{Qt::Key_Minus, 189},
    KeyPair{Qt::Key_Period, 190},
    KeyPair{Qt::Key_Colon, 190},
    // The signs over the digits, as they stand on the Spanish keyboard.
    KeyPair{Qt::Key_Exclam, 49},
    KeyPair{Qt::Key_QuoteDbl, 50},
    KeyPair{Qt::Key_periodcentered, 51},
    KeyPair{Qt::Key_Dollar, 52},
    KeyPair{Qt::Key_Percent, 53},
    KeyPair{Qt::Key_Ampersand, 54},
    KeyPair{Qt::Key_Slash, 55},
    KeyPair{Qt::Key_ParenLeft, 56},
    KeyPair{Qt::Key_ParenRight, 57},
    KeyPair{Qt::Key_Equal, 48},
    KeyPair{Qt::Key_Asterisk, 187},
};

constexpr std::array KeypadKeys{
    KeyPair{Qt::Key_Asterisk, 106},
    KeyPair{Qt::Key_Plus, 107},
    KeyPair{Qt::Key_Minus, 109},
    KeyPair{Qt::Key_Period, 110},
    KeyPair{Qt::Key_Comma, 110},
    KeyPair{Qt::Key_Slash, 111},
};

template <std::size_t Size> int find(const std::array<KeyPair, Size>& pairs, int qtKey)
{
    for (const KeyPair& pair : pairs) {
        if (pair.qtKey == qtKey)
            return pair.code;
    }
    return 0;
}

/// Whether a key with these modifiers types nothing. Control and Alt together are what some
/// systems make of AltGr: with it a text box takes any character that can be seen.
bool isCommand(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held =
        event.modifiers() & (Qt::AltModifier | Qt::ControlModifier);
    if (held == (Qt::AltModifier | Qt::ControlModifier))
        return !event.text().front().isPrint();
    return held != Qt::NoModifier;
}

} // namespace

int keyCode(const QKeyEvent& event)
{
    const int qtKey = event.key();
    if (event.modifiers() & Qt::KeypadModifier) {
        if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9)
            return key::Keypad0 + qtKey - Qt::Key_0;
        if (const int code = find(KeypadKeys, qtKey))
            return code;
    }
    if ((qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) || (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z))
        return qtKey; // the same numbers
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24)
        return key::F1 + qtKey - Qt::Key_F1;
    if (const int code = find(NamedKeys, qtKey))
        return code;
    if (qtKey >= Qt::Key_Dead_Grave && qtKey <= Qt::Key_Dead_Longsolidusoverlay)
        return key::Other; // an accent key types too, with the next one
    return event.text().isEmpty() && qtKey >= Qt::Key_Escape ? 0 : key::Other;
}

quint32 physicalKey(const QKeyEvent& event)
{
    const quint32 physical = event.nativeScanCode();
    return physical != 0 ? physical : static_cast<quint32>(event.key());
}

QChar typedCharacter(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QChar(key::Enter);
    case Qt::Key_Backspace:
        return QChar(key::Backspace);
    case Qt::Key_Escape:
        return QChar(key::Escape);
    case Qt::Key_Delete:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return {};
    default:
        break;
    }
    if (event.text().isEmpty() || isCommand(event))
        return {};
    return event.text().front();
}

KeyFilter::KeyFilter(QObject* control)
    : QObject(control)
{
    control->installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        return handlePress(*static_cast<QKeyEvent*>(event)) == KeyResult::Swallow;
    if (event->type() == QEvent::KeyRelease && up) {
        const auto& keyEvent = *static_cast<QKeyEvent*>(event);
        if (!keyEvent.isAutoRepeat())
            up(keyCode(keyEvent), keyEvent.modifiers());
    }
    return QObject::eventFilter(watched, event);
}

KeyResult KeyFilter::handlePress(const QKeyEvent& event) const
{
    if (down && down(keyCode(event), event.modifiers()) == KeyResult::Swallow)
        return KeyResult::Swallow;
    const QChar character = typedCharacter(event);
    if (press && !character.isNull())
        return press(character);
    return KeyResult::Pass;
}

} // namespace ui
