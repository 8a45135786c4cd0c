#pragma once

#include "ui/memo.h"

namespace written {

/// A text box of several lines on squared paper, to work in as in an exercise book: every
/// character stands in a square of its own. For fixed-pitch fonts.
class ScratchArea : public ui::Memo {
public:
    explicit ScratchArea(QWidget* parent);

    void setFactor(double factor) override;

    /// The side of a square in pixels: the height of a line, whatever the factor.
    int square() const { return m_square; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawSquares();

    int m_square = 1;
    int m_pen = 1;
    double m_firstColumn = 0; ///< left edge of a square, in pixels from that of the document
};

} // namespace written
