#pragma once

#include "ui/scaling.h"

#include <QWidget>

namespace ui {

/// An ink line of an operation: along the top edge of its place, or, where that is higher than
/// wide, along its left edge. Two pixels thick at factor 1, and crisp at every factor.
class Rule : public QWidget, public Scalable {
public:
    static constexpr double Room = 45; ///< that a place leaves for the line, in twips

    explicit Rule(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
