#pragma once

class QPainter;
class QRect;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionMenuItem;
class QWidget;

/// How controls are painted: their frames, fills and captions, at the factor of their screen.
namespace ui {

/// The frame of a text or a list.
void drawBox(QPainter& painter, const QStyleOption& option, double factor);

/// The frame of an entry, brighter while it is typed into; showsFocus: with a ring of its own.
void drawEntry(QPainter& painter, const QStyleOption& option, double factor, bool showsFocus);

/// The frame around what stands below the title of a group.
void drawGroup(
    QPainter& painter, const QStyleOption& option, const QWidget* group, double factor);

/// The part of a button's place that is painted, in whose middle its caption stands. One with
/// an icon keeps free of its neighbours: a menu's columns touch.
QRect buttonFace(const QRect& place, bool hasIcon, double factor);

/// A button without its caption; showsFocus: with a ring of its own while it has the focus.
void drawButton(QPainter& painter, const QStyleOption& option, double factor, bool showsFocus);

/// The side of the square in which a button's icon is painted, in pixels.
int iconSide(double factor);

/// A button's caption; where it has an icon, that on a paper card at its left.
void drawButtonLabel(
    QPainter& painter, const QStyleOptionButton& option, double factor, bool showsAccessKey);

/// An item of a menu bar, as high as its bar; the line below the bar is the bar's own.
void drawMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item, bool showsAccessKey);

} // namespace ui
