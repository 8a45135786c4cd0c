#pragma once

#include "ui/scaling.h"

#include <QWidget>

namespace ui {

/// A sheet of squared paper to lie behind the boxes of an operation. Its lines run at the
/// pixels at which controls placed on them begin and end, at every factor.
class SquaredPaper : public QWidget, public Scalable {
public:
    explicit SquaredPaper(QWidget* parent);

    /// One of the squares, in twips on the parent; all others line up with it.
    void setSquare(const TwipRect& square);

    /// Another ground than white, where only a part of the sheet can be written.
    void setFill(const QColor& fill);
    /// The edge all round, in pixels at factor 1.
    void setEdge(double width);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TwipRect m_square{0, 0, 250, 250};
    QColor m_fill = look::Card;
    double m_edge = look::EdgeWidth;
};

} // namespace ui
