#pragma once

#include "ui/memo.h"

namespace written {

/// A text box of several lines on squared paper, to work in as in an exercise book: every
/// character stands in a square of its own, and no square is cut off. For fixed-pitch fonts.
class ScratchArea : public ui::Memo {
public:
    explicit ScratchArea(QWidget* parent);

    void setFactor(double factor) override;

    /// The side of a square in pixels: the height of a line, whatever the factor.
    int square() const { return m_square; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitWholeSquares();
    void paintSquares();

    int m_square = 1;
    int m_corner = 0; ///< keeps the squares off the round corners of the box
    int m_pen = 1;
};

} // namespace written
