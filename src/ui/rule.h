#pragma once

#include "ui/scaling.h"

#include <QWidget>

namespace ui {

/// A level ink line of an operation, along the top edge of its place; two pixels thick at
/// factor 1, and crisp at every factor.
class Rule : public QWidget, public Scalable {
public:
    static constexpr double Height = 45; ///< of its place, in twips; room for the line

    explicit Rule(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
