#pragma once

#include "ui/text_box.h"

namespace ui {

/// A text box on squared paper: right-aligned, one character to a square, the last one in
/// the square at its right edge. Draws its caret on the line between two squares. The caret
/// stays where it was when the box gets the focus, so that the next digit goes there.
class SquaredBox : public TextBox {
public:
    SquaredBox(Kind kind, QWidget* parent);

    /// The size of a square, and how far below the top of the box the written ones begin; in
    /// twips. The type fills a square.
    void setSquare(double width, double height, double top);

    void setFactor(double factor) override;

    /// Puts a text there, with the caret in front of it.
    void write(const QString& text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect caret() const;

    double m_factor = 1;
    double m_width = 250;
    double m_height = 250;
    double m_top = 250;
};

} // namespace ui
