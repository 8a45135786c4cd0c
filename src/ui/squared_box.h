#pragma once

#include "ui/text_box.h"

namespace ui {

/// A text box on squared paper: usually right-aligned, one character to a square, the last one in
/// the square at its right edge; the square in which the next digit will stand is marked, and a
/// selection covers whole squares. The place stays where it was when the box gets the focus.
class SquaredBox : public TextBox {
public:
    SquaredBox(Kind kind, QWidget* parent);

    /// The pixel size of a type whose digits fit a square of this size, in pixels.
    static int fittingSize(QFont font, double width, double height);

    /// The size of a square, and how far below the top of the box the written ones begin; in
    /// twips. The type fits a square and is never larger than 34 pixels at factor 1.
    void setSquare(double width, double height, double top);

    /// Lets the text run from the left instead, its first character in a square that begins
    /// so far from the left edge, in twips.
    void setLeftAligned(double indent);

    /// Lets a run of so many blanks take up one square only.
    void setBlankRun(int blanks);

    void setFactor(double factor) override;

    /// How many squares the text takes up.
    int columns() const { return columnsFrom(0); }

    /// Puts a text there, with the caret in front of it.
    void write(const QString& text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void frameFigures();
    double squarePixels() const;
    int columnsFrom(int index) const;
    double lineBefore(int index) const;
    QRect strip(double left, double right) const;
    QRect caretRect() const override;
    QRect hereSquare() const;

    QColor m_highlight;
    double m_width = 250;
    double m_height = 250;
    double m_top = 250;
    double m_indent = 0; ///< left of the first square, when the text runs from the left
    int m_blankRun = 1;
};

} // namespace ui
