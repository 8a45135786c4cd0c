#pragma once

#include <QWidget>

namespace ui {

/// Holds the radio buttons of a group box, so that a screen reader says the caption of the box
/// once, when the focus comes in. Before a button that stands in the box itself it would say it
/// twice then, and again at every arrow key.
class RadioGroup : public QWidget {
public:
    explicit RadioGroup(QWidget* box);
};

} // namespace ui
