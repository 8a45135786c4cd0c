#include "games/rain_field.h"

#include "core/defect.h"
#include "games/rain_grid.h"
#include "games/rain_splash.h"
#include "ui/control_factory.h"
#include "ui/focus_ring.h"

#include <QMouseEvent>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace games {

namespace {

constexpr std::array<QRgb, Gota::Fastest> Colores{
    0xFFFF0000, 0xFFFFFF00, 0xFFFFA500, 0xFF00FF00, 0xFF0000FF}; // classes 1 to 5

QRgb colourOf(const Gota& gota)
{
    return core::at(Colores, gota.Velocidad.value() - 1);
}

QPointF placeOf(const Gota& gota)
{
    return {static_cast<double>(RainGrid::left(gota)), static_cast<double>(RainGrid::top(gota))};
}

double distance(const QRectF& area, QPointF place)
{
    const double beside = std::max({area.left() - place.x(), 0.0, place.x() - area.right()});
    const double above = std::max({area.top() - place.y(), 0.0, place.y() - area.bottom()});
    return std::hypot(beside, above);
}

} // namespace

RainField::RainField(ui::ControlFactory& factory, QObject* parent)
    : QObject(parent)
    , m_factory(factory)
    , m_canvas(factory.canvas())
    , m_halo(new RainHalo(factory.canvas()))
    , m_glide(new ui::Glide([&factory](QWidget* control, double left,
                                double top) { factory.moveTo(control, left, top); },
          this))
{
    m_canvas->installEventFilter(this);
}

RainDrop* RainField::make(int slot)
{
    auto* drop = m_factory.add(new RainDrop(m_factory.canvas()), u"CbNave(%1)"_s.arg(slot),
        {0, 0, RainDrop::Width, RainDrop::Height});
    drop->hide();
    drop->setEnabled(false);
    ui::FocusRing::leaveOut(*drop); // it has the halo
    watch(drop);
    return core::at(CbNave, slot) = drop;
}

void RainField::watch(QWidget* control)
{
    control->installEventFilter(this);
}

void RainField::launch(int slot, const Gota& gota)
{
    RainDrop* number = drop(slot);
    number->setText(QString::number(gota.Valor.value()));
    number->setFill(colourOf(gota));
    m_factory.setControlFont(
        number, {ui::look::Family::CourierNew, RainDrop::digitPixels(number->text()), true});
    m_glide->put(number, placeOf(gota));
    number->setEnabled(true);
    number->show();
}

void RainField::flow(int slot, const Gota& gota, std::chrono::milliseconds tick)
{
    const ui::TwipRect from = m_factory.placeOf(drop(slot));
    m_glide->send(
        drop(slot), {from.left, from.top}, placeOf(gota), gota.ticksPerStep().value() * tick);
}

void RainField::clear(int slot)
{
    drop(slot)->hide();
    drop(slot)->setEnabled(false);
}

void RainField::splash(const RainEvent& event) const
{
    QWidget& canvas = *m_canvas;
    const QPoint place = drop(event.slot)->geometry().center();
    const int points = event.points.value();
    const QChar sign = points < 0 ? u'\u2212' : u'+';
    const QString text = points == 0 ? QString() : sign + QString::number(std::abs(points));
    switch (event.kind) {
    case RainEvent::Kind::Hit:
        RainSplash::show(canvas, RainSplash::Kind::Hit, place, colourOf(event.gota), text);
        break;
    case RainEvent::Kind::Miss:
        RainSplash::show(canvas, RainSplash::Kind::Miss, place, colourOf(event.gota), text);
        break;
    case RainEvent::Kind::Escape:
        RainSplash::show(canvas, RainSplash::Kind::Ground,
            {place.x(), canvas.height() - drop(event.slot)->height() / 3}, colourOf(event.gota),
            text);
        break;
    }
}

bool RainField::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        playBy(true);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: { // the second of two hurried presses
        playBy(false);
        const auto* press = static_cast<QMouseEvent*>(event);
        const bool onSky = watched == m_canvas && press->button() == Qt::LeftButton;
        if (const int slot = onSky ? nearest(press->position().toPoint()) : -1; slot >= 0)
            emit pressedNear(slot);
        break;
    }
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
        showHalo();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void RainField::playBy(bool keyboard)
{
    m_byKeyboard = keyboard;
    showHalo();
}

void RainField::showHalo()
{
    if (!m_halo)
        return;
    auto* focused = dynamic_cast<RainDrop*>(m_canvas->window()->focusWidget());
    if (m_byKeyboard && focused != nullptr && focused->isVisible() && focused->hasFocus())
        m_halo->surround(*focused);
    else
        m_halo->hide();
}

int RainField::nearest(QPoint place) const
{
    double least = Reach * ui::factorOf(m_canvas);
    int found = -1;
    for (int slot = 0; slot < RainFall::Slots; ++slot) {
        const RainDrop* number = drop(slot);
        if (number == nullptr || !number->isVisible())
            continue;
        const double away = distance(number->geometry(), place);
        if (away <= least) {
            least = away;
            found = slot;
        }
    }
    return found;
}

} // namespace games
