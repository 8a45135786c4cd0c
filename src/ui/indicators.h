#pragma once

class QPainter;
class QStyleOption;

/// The small signs of check boxes, options and menus. Their lines grow with the factor of the
/// screen, and their edges are dark enough to be found by weak eyes.
namespace ui {

void drawCheckBox(QPainter& painter, const QStyleOption& option, double factor);
void drawRadioButton(QPainter& painter, const QStyleOption& option, double factor);

/// The arrow that points from a menu's item to the menu behind it.
void drawSubmenuArrow(QPainter& painter, const QStyleOption& option, double factor);

} // namespace ui
