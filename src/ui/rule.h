#pragma once

#include "ui/placement.h"

#include <QWidget>

namespace ui {

/// A level ink line of an operation, along the top edge of its place; two pixels thick at
/// factor 1, and crisp at every factor.
class Rule : public QWidget, public Scalable {
public:
    static constexpr double Height = 45; ///< of its place, in twips; room for the line

    explicit Rule(QWidget* parent);

    void setFactor(double factor) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_factor = 1;
};

} // namespace ui
