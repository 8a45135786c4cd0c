#pragma once

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionMenuItem;
class QWidget;

/// The faces of controls: their frames, fills and captions, at the factor of their screen.
namespace ui {

/// The frame of an entry, a text or a list.
void drawBox(QPainter& painter, const QStyleOption& option, double factor);

/// The same with a ring, for an entry that shows its focus by itself.
void drawFocusedBox(QPainter& painter, const QStyleOption& option, double factor);

/// The frame around what stands below the title of a group.
void drawGroup(
    QPainter& painter, const QStyleOption& option, const QWidget* group, double factor);

/// A button without its caption; showsFocus: with a ring of its own while it has the focus.
void drawButton(QPainter& painter, const QStyleOption& option, double factor, bool showsFocus);

/// A button's caption, with the icon at its left where there is one.
void drawButtonLabel(QPainter& painter, const QStyleOptionButton& option, double factor);

/// An item of a menu bar, as high as its bar; the line below the bar is the bar's own.
void drawMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item);

} // namespace ui
