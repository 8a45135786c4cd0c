#pragma once

#include "ui/control_factory.h"
#include "ui/menu_factory.h"

#include <QWidget>

#include <limits>

namespace ui {

class FocusRing;

/// A window with a menu bar, where it has one, over a canvas of a design size in twips. One
/// factor maps twips to pixels; it follows the window, and every control and font follows it.
class ScaledWindow : public QWidget, protected ControlFactory, protected MenuFactory {
public:
    double factor() const { return m_factor; }

protected:
    /// width and height are the canvas's design size in twips.
    ScaledWindow(double width, double height);

    double designWidth() const { return m_designWidth; }
    double designHeight() const { return m_designHeight; }

    /// Gives the canvas another design size (twips). The window grows or shrinks with it at
    /// the same factor, about its middle but never out of the display; where the display is too
    /// small, the factor gives way.
    void setDesignSize(double width, double height);

    /// Gives the window its first size, as large as its display allows but at most at this
    /// factor, and its place in the middle of the display.
    void comeUp(double atMost = std::numeric_limits<double>::infinity());

    void resizeEvent(QResizeEvent* event) override;

private:
    QSizeF designPixels() const;
    void resizeToDesign(double factor);
    void moveAbout(const QPoint& middle);
    void layOut();
    void setFactor(double factor);

    FocusRing* m_ring;
    double m_designWidth;
    double m_designHeight;
    double m_factor = 1;
    double m_factorGivenWay = 0; ///< the factor meant, while the display is too small for it
    QSize m_ownSize; ///< the last size that the window gave itself
};

} // namespace ui
