#include "ui/ground.h"

#include "ui/look.h"

#include <QEvent>
#include <QPainter>
#include <QPaintEvent>

#include <algorithm>

namespace ui {

namespace {

constexpr double NarrowestMascot = 48; // pixels on the display: smaller, its face is lost
constexpr double ShareOfMargin = 0.8;
constexpr double ShareOfHeight = 0.3;
constexpr double GapBelow = 0.04; // of the window's height

} // namespace

Ground::Ground(QWidget& canvas)
    : QWidget(canvas.parentWidget())
    , m_canvas(canvas)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_canvas.setAutoFillBackground(true);
    m_canvas.installEventFilter(this);
    m_canvas.parentWidget()->installEventFilter(this);
    lower();
}

void Ground::pose(const QWidget& control, Pose pose)
{
    auto* ground = control.window()->findChild<Ground*>({}, Qt::FindDirectChildrenOnly);
    if (ground == nullptr || ground->m_pose == pose)
        return;
    ground->m_pose = pose;
    ground->update();
}

QRectF Ground::mascotPlace() const
{
    const double margin = width() - m_canvas.geometry().right() - 1;
    const double high = std::min(ShareOfHeight * height(), ShareOfMargin * margin / MascotShape);
    const double wide = high * MascotShape;
    if (wide < NarrowestMascot)
        return {};
    return {width() - (margin + wide) / 2, height() * (1 - GapBelow) - high, wide, high};
}

bool Ground::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        resize(parentWidget()->size());
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void Ground::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), QColor(look::Slate));
    const QRectF place = mascotPlace();
    if (m_pose && !place.isEmpty())
        drawMascot(painter, place, *m_pose);
}

} // namespace ui
