#include "ui/underlay.h"

#include <QEvent>

#include <algorithm>

namespace ui {

Underlay::Underlay(const std::vector<QWidget*>& controls)
    : QWidget(controls.front()->parentWidget())
    , m_controls(controls.begin(), controls.end())
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QWidget* control : controls)
        control->installEventFilter(this);
}

std::vector<QRect> Underlay::coveredPlaces() const
{
    std::vector<QRect> places;
    for (const QPointer<QWidget>& control : m_controls) {
        const QRect place =
            control && control->isVisibleTo(parentWidget()) ? placeOf(*control) : QRect();
        if (!place.isNull())
            places.push_back(place);
    }
    return places;
}

bool Underlay::liesBehind(const QWidget& control) const
{
    return std::ranges::find(m_controls, &control) != m_controls.end();
}

void Underlay::follow()
{
    QRect covered;
    for (const QRect& place : coveredPlaces())
        covered |= place;
    setGeometry(around(covered));
    setVisible(!covered.isNull());
    update();
}

bool Underlay::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        follow();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace ui
