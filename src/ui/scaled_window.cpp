#include "ui/scaled_window.h"

#include "ui/focus_ring.h"
#include "ui/ground.h"
#include "ui/opening_factor.h"

#include <QMenuBar>
#include <QResizeEvent>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

constexpr double SmallestFactor = 0.5;
constexpr int Crack = 2; // pixels of ground that would look like one beside the canvas

} // namespace

ScaledWindow::ScaledWindow(double width, double height)
    : ControlFactory(new QWidget(this))
    , MenuFactory(this)
    , m_ring(new FocusRing(canvas()))
    , m_designWidth(width)
    , m_designHeight(height)
{
    new Ground(*canvas());
}

void ScaledWindow::setDesignSize(double width, double height)
{
    m_designWidth = width;
    m_designHeight = height;
    if (isMaximized() || isFullScreen()) {
        layOut();
        return;
    }
    const QPoint middle = frameGeometry().center();
    resizeToDesign(m_factorGivenWay > 0 ? m_factorGivenWay : m_factor);
    if (isVisible())
        moveAbout(middle);
}

void ScaledWindow::moveAbout(const QPoint& middle)
{
    QRect place = frameGeometry();
    place.moveCenter(middle);
    const QRect available = screen()->availableGeometry();
    place.moveRight(std::min(place.right(), available.right()));
    place.moveBottom(std::min(place.bottom(), available.bottom()));
    place.moveLeft(std::max(place.left(), available.left()));
    place.moveTop(std::max(place.top(), available.top()));
    move(place.topLeft());
}

void ScaledWindow::comeUp(double atMost)
{
    const QRect available = screen()->availableGeometry();
    resizeToDesign(std::min(atMost, openingFactor(designPixels(), available.size())));
    // The window manager's frame stands above the canvas: it counts when centring.
    move(available.x() + (available.width() - width()) / 2,
        available.y() + std::max(0, (available.height() - height() - FrameHeight) / 2));
}

/// The size of the window at factor 1, without its frame.
QSizeF ScaledWindow::designPixels() const
{
    return {m_designWidth / TwipsPerPixel, m_designHeight / TwipsPerPixel + menuBarHeight()};
}

void ScaledWindow::resizeToDesign(double factor)
{
    const double width = designPixels().width();
    const double height = designPixels().height();
    const QSize available = screen()->availableGeometry().size();
    const double fitting = std::min(
        {factor, available.width() / width, (available.height() - FrameHeight) / height});
    const auto pixels = [](double length) { return static_cast<int>(std::ceil(length)); };
    const double smallest = std::min(SmallestFactor, fitting);
    setMinimumSize(pixels(width * smallest), pixels(height * smallest));
    m_ownSize = QSize(pixels(width * fitting), pixels(height * fitting));
    resize(m_ownSize);
    layOut(); // the size may be the same, the design not
    m_factorGivenWay = fitting < factor ? factor : 0; // resizing has forgotten it
}

void ScaledWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->size() != m_ownSize)
        m_factorGivenWay = 0; // a person has chosen another size
    layOut();
}

void ScaledWindow::layOut()
{
    const double designWidth = designPixels().width();
    const double designHeight = designPixels().height();
    double factor = std::min(width() / designWidth, height() / designHeight);
    // Whole pixels hardly ever give a round factor: within a pixel of one, it is meant.
    const double twentieth = std::round(factor * 20) / 20;
    if (std::abs(factor - twentieth) * std::max(designWidth, designHeight) < 1.5)
        factor = twentieth;
    setFactor(factor);

    const int barHeight = static_cast<int>(std::lround(menuBarHeight() * factor));
    if (QMenuBar* bar = menuBar())
        bar->setGeometry(0, 0, width(), barHeight);
    const QRect room(0, barHeight, width(), height() - barHeight);
    QSize area = toPixels({0, 0, m_designWidth, m_designHeight}, factor).size();
    if (room.width() - area.width() <= Crack)
        area.setWidth(room.width());
    if (room.height() - area.height() <= Crack)
        area.setHeight(room.height());
    canvas()->setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, area, room));
}

void ScaledWindow::setFactor(double factor)
{
    if (factor == m_factor)
        return;
    m_factor = factor;
    setWindowFactor(*this, factor);
    m_ring->setFactor(factor);
    scaling().setFactor(factor);
    setMenuFactor(factor);
}

} // namespace ui
