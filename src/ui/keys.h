#pragma once

#include <QChar>
#include <QObject>

#include <functional>

class QKeyEvent;

namespace ui {

/// What a handler of a key decides: the control gets the key, or it is swallowed.
enum class KeyResult { Pass, Swallow };

/// Key codes as the rules of the screens speak of them: one number a physical key, letters
/// and digits by their capital, 0 to 255.
namespace key {
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Shift = 16;
inline constexpr int Control = 17;
inline constexpr int Alt = 18;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int Digit0 = 48; ///< to 57, the digit row
inline constexpr int Digit9 = 57;
inline constexpr int Keypad0 = 96; ///< to 105, the numeric keypad
inline constexpr int Keypad9 = 105;
inline constexpr int F1 = 112; ///< to 135
inline constexpr int F5 = 116;
inline constexpr int Comma = 188;
inline constexpr int Other = 231; ///< a printing key that has no number of its own
} // namespace key

/// The key code of a key event; 0 for a key without one.
int keyCode(const QKeyEvent& event);

/// The physical key, where the platform tells it: Shift changes what a key means while it is
/// down.
quint32 physicalKey(const QKeyEvent& event);

/// The character that a key press types, with 13, 8 and 27 for Enter, Backspace and Escape;
/// null when it types none.
QChar typedCharacter(const QKeyEvent& event);

/// Splits the key events of one control into the three that the rules tell apart. A press
/// calls down, then, when it types a character, press; a release calls up. A key held down
/// repeats down and press where its repeats come through (HeldKeys), never up.
class KeyFilter : public QObject {
public:
    using DownHandler = std::function<KeyResult(int keyCode, Qt::KeyboardModifiers modifiers)>;
    using PressHandler = std::function<KeyResult(QChar character)>;
    using UpHandler = std::function<void(int keyCode, Qt::KeyboardModifiers modifiers)>;

    explicit KeyFilter(QObject* control);

    DownHandler down;
    PressHandler press;
    UpHandler up;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    KeyResult handlePress(const QKeyEvent& event) const;
};

} // namespace ui
