#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// Colours, fonts and measures of the whole program. Measures are pixels at factor 1.
namespace ui::look {

inline constexpr QRgb Paper = 0xFFFAF7F0; ///< window background
inline constexpr QRgb Card = 0xFFFFFFFF; ///< entry boxes, squared paper, lists
inline constexpr QRgb Ink = 0xFF16202B; ///< text, digits, lines of an operation
inline constexpr QRgb Quiet = 0xFF55616E; ///< secondary text, disabled labels
inline constexpr QRgb Line = 0xFFB9C2CC; ///< edges of boxes
inline constexpr QRgb Grid = 0xFFCFE2F0; ///< squares of squared paper
inline constexpr QRgb Focus = 0xFF1557C0; ///< focus ring, caret, list selection
inline constexpr QRgb Shown = 0xFFD6E4FA; ///< highlight of a text that is shown selected
inline constexpr QRgb Right = 0xFF1B7F3B; ///< the tick beside a verdict
inline constexpr QRgb Wrong = 0xFFC62828; ///< the cross beside a verdict

inline constexpr QRgb Red = 0xFFFF0000; ///< 255 as a stored 24-bit colour
inline constexpr QRgb Green = 0xFF00FF00; ///< 65280
inline constexpr QRgb Yellow = 0xFFFFFF00; ///< 65535
inline constexpr QRgb Cyan = 0xFF00FFFF; ///< 16776960

inline constexpr int MenuBarHeight = 28;
inline constexpr int BoxMargin = 6; ///< between the edge of an entry box and its text
inline constexpr int CornerMargin = 3; ///< keeps what a box holds off its round corners
inline constexpr int RingWidth = 3; ///< focus ring

enum class Family { Arial, CourierNew, Verdana };

/// A font of a control: its size is in pixels at factor 1 and follows the screen's factor.
struct Font {
    Family family = Family::Arial;
    int pixels = 15;
    bool bold = false;
};

inline constexpr Font Counters{Family::Arial, 12};
inline constexpr Font Instruction{Family::Arial, 15};
inline constexpr Font Verdict{Family::Arial, 17, true};
inline constexpr Font BoxText{Family::Arial, 18}; ///< of message and input boxes
inline constexpr Font Command{Family::Arial, 13, true};

/// The font at a factor, with a metric-compatible fallback family.
QFont scaled(const Font& font, double factor);

/// The light palette of the program, complete, so that nothing of the desktop's shows.
QPalette palette();

/// The palette of a text that is only shown: no fill, a quiet highlight, ink even when
/// disabled.
QPalette displayed();

/// The palette of a control filled with a colour, its text readable on it.
QPalette filled(const QColor& fill);

/// WCAG contrast ratio of two colours, 1 to 21.
double contrast(const QColor& a, const QColor& b);

/// Ink, or where ink does not reach a contrast of 4.5:1, black or white, whichever is better.
QColor inkOn(const QColor& fill);

} // namespace ui::look
