#include "ui/focus_ring.h"

#include "ui/control_painting.h"
#include "ui/look.h"
#include "ui/tray.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>

#include <cmath>

namespace ui {

namespace {

constexpr double Radius = 12; // pixels at factor 1
constexpr const char* MarksItself = "marksItself"; // the property of a control that is left out

bool isOnlyRead(const QWidget* widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(widget))
        return line->isReadOnly();
    if (const auto* plain = qobject_cast<const QPlainTextEdit*>(widget))
        return plain->isReadOnly();
    const auto* text = qobject_cast<const QTextEdit*>(widget);
    return text != nullptr && text->isReadOnly();
}

} // namespace

void FocusRing::leaveOut(QWidget& control)
{
    control.setProperty(MarksItself, true);
}

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
    if (!m_focused || !m_focused->isVisibleTo(parentWidget())
        || m_focused->property(MarksItself).toBool()) {
        hide();
        return;
    }
    const int width = ringWidth();
    const QPoint origin = m_focused->mapTo(parentWidget(), QPoint(0, 0));
    QRect place(origin, m_focused->size());
    if (const auto* button = qobject_cast<const QPushButton*>(m_focused.data()))
        place = buttonFace(place, !button->icon().isNull(), factor());
    setGeometry(place.adjusted(-width, -width, width, width));
    raise();
    show();
}

int FocusRing::ringWidth() const
{
    return static_cast<int>(std::ceil(look::thick(look::RingWidth) * factor()));
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

void FocusRing::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        surround(); // the ring may be as thick again
    QWidget::changeEvent(event);
}

void FocusRing::paintEvent(QPaintEvent*)
{
    if (!m_focused)
        return;
    const double full = look::thick(look::RingWidth) * factor();
    const double width =
        isOnlyRead(m_focused) ? look::thick(look::QuietRingWidth) * factor() : full;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(Tray::holds(*m_focused) ? QColor(look::FocusOnSlate)
                                     : parentWidget()->palette().color(QPalette::Highlight),
            width));
    const double inset = full - width / 2; // next to the edge of the control
    const double radius = Radius * factor();
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}

} // namespace ui
