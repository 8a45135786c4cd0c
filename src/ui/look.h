#pragma once

#include <QColor>
#include <QEvent>
#include <QFont>
#include <QPalette>

/// Colours, fonts and measures of the whole program. Measures are pixels at factor 1.
namespace ui::look {

// Surfaces.
inline constexpr QRgb Slate = 0xFF26323C; ///< ground of the menu, of wide windows, of trays
inline constexpr QRgb Paper = 0xFFFAF7F0; ///< see paper()
inline constexpr QRgb Card = 0xFFFFFFFF; ///< entry boxes, squared paper, lists
inline constexpr QRgb CardFocused = 0xFFFFFBEA; ///< the entry box that is typed into

// What is written and drawn on them.
inline constexpr QRgb Ink = 0xFF16202B; ///< text, digits, lines of an operation
inline constexpr QRgb Quiet = 0xFF55616E; ///< disabled labels; units and counters: see quiet()
inline constexpr QRgb Edge = 0xFF7E8A96; ///< edges of boxes
inline constexpr QRgb Grid = 0xFFCFE2F0; ///< squares of squared paper
inline constexpr QRgb Chalk = 0xFFFAF7F0; ///< text on slate

// Marks; the widths below are those of the usual contrast, see thick().
inline constexpr QRgb Focus = 0xFF1557C0; ///< focus mark on paper, caret, list selection
inline constexpr QRgb FocusOnSlate = 0xFFFFFFFF;
inline constexpr QRgb Marker = 0xFFFFF3C4; ///< stripe behind a text that is shown selected
inline constexpr QRgb Here = 0xFFFFE9A8; ///< the square to be written next
inline constexpr QRgb Right = 0xFF1B7F3B; ///< disc of a verdict, edge of the answer box
inline constexpr QRgb Wrong = 0xFFC62828;
inline constexpr QRgb Gold = 0xFFF5B301; ///< star of a right answer

// Fills of action buttons.
inline constexpr QRgb Red = 0xFFFF0000;
inline constexpr QRgb Green = 0xFF00FF00;
inline constexpr QRgb Yellow = 0xFFFFFF00;
inline constexpr QRgb Cyan = 0xFF00FFFF;

inline constexpr int MenuBarHeight = 28; ///< above the canvas, with this type in it:
inline constexpr int MenuType = 16;
inline constexpr int BoxMargin = 6; ///< between the edge of an entry box and its text
inline constexpr int CornerMargin = 3; ///< keeps what a box holds off its round corners
inline constexpr double BoxRadius = 6; ///< corners of boxes
inline constexpr double EdgeWidth = 1.5; ///< of boxes and buttons
inline constexpr int JudgedEdgeWidth = 3; ///< of an answer box beside its verdict
inline constexpr int RingWidth = 4; ///< focus mark
inline constexpr double QuietRingWidth = 1.5; ///< focus mark of a text that is only read
inline constexpr int CaretWidth = 3;

/// Andika wherever no font is asked for by name.
enum class Family { Andika, Arial, CourierNew, Verdana };

/// A font of a control: its size is in pixels at factor 1 and follows the screen's factor.
struct Font {
    Family family = Family::Andika;
    int pixels = 15;
    bool bold = false;
    int spacing = 100; ///< of its letters, per cent
};

inline constexpr Font Counters{Family::Andika, 12};
inline constexpr Font Instruction{Family::Andika, 15};
inline constexpr Font Verdict{Family::Andika, 20, true};
inline constexpr Font Command{Family::Andika, 14, true};
inline constexpr Font BoxText{Family::Andika, 18}; ///< of message and input boxes

/// The font at a factor; where the family is not installed, its metric twin. The first font of
/// a family loads what travels beside the executable, where the system lacks it.
QFont scaled(const Font& font, double factor);

/// High: paper is white, edges and marks are twice as thick, quiet texts are of ink.
enum class Contrast { Usual, High };

/// Of the application's palette.
Contrast contrastOfApplication();

/// Gives the application and what stands on the display a contrast.
void setContrast(Contrast contrast);

/// Every widget is sent it when a contrast has been set.
QEvent::Type contrastEvent();

/// Where work is read and written.
QColor paper();

/// Texts that stand back, see QuietText.
QColor quiet();

/// How thick an edge or a mark is drawn, in pixels at factor 1, that usually is so thick.
double thick(double width);

/// The light palette of the program, complete, so that nothing of the desktop's shows.
QPalette palette(Contrast contrast = contrastOfApplication());

/// The palette of a text that is only shown: no fill, a marker as highlight, ink even when
/// disabled.
QPalette displayed();

/// The palette of what stands on the slate ground: text of chalk, white focus mark.
QPalette onSlate();

/// The palette of a control filled with a colour, its text readable on it.
QPalette filled(const QColor& fill);

/// The edge of a filled control: its colour, 40 % darker.
QColor edgeOf(const QColor& fill);

inline constexpr double ReadableContrast = 4.5; ///< of a text, with its ground
inline constexpr double FindableContrast = 3; ///< of an edge or a mark

/// WCAG contrast ratio of two colours, 1 to 21.
double contrast(const QColor& a, const QColor& b);

/// Ink, or where ink does not reach a contrast of 4.5:1, black or white, whichever is better.
QColor inkOn(const QColor& fill);

} // namespace ui::look
