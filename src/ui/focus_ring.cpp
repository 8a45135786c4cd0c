#include "ui/focus_ring.h"

#include "ui/look.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include <cmath>

namespace ui {

namespace {

constexpr double Radius = 8; // pixels at factor 1

} // namespace

FocusRing::FocusRing(QWidget* canvas)
    : QWidget(canvas)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    connect(
        qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusRing::follow(QWidget* focused)
{
    // No focus at all: a box is open or the window is not the active one; the ring stays.
    if (focused == nullptr || focused->window() != window())
        return;
    if (m_focused)
        m_focused->removeEventFilter(this);
    m_focused = parentWidget()->isAncestorOf(focused) ? focused : nullptr;
    if (m_focused)
        m_focused->installEventFilter(this);
    surround();
}

void FocusRing::surround()
{
    if (!m_focused || !m_focused->isVisibleTo(parentWidget())) {
        hide();
        return;
    }
    const int width = ringWidth();
    const QPoint origin = m_focused->mapTo(parentWidget(), QPoint(0, 0));
    setGeometry(QRect(origin, m_focused->size()).adjusted(-width, -width, width, width));
    raise();
    show();
}

int FocusRing::ringWidth() const
{
    return static_cast<int>(std::ceil(look::RingWidth * factor()));
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ZOrderChange:
        surround();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent*)
{
    const double width = look::RingWidth * factor();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(parentWidget()->palette().color(QPalette::Highlight), width));
    const double inset = width / 2;
    const double radius = Radius * factor();
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}

} // namespace ui
