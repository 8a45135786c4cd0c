#include "ui/tray.h"

#include "ui/look.h"
#include "ui/scaling.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace ui {

namespace {

constexpr double Radius = 12; // pixels at factor 1

} // namespace

Tray::Tray(const std::vector<QWidget*>& buttons)
    : QWidget(buttons.front()->parentWidget())
    , m_buttons(buttons.begin(), buttons.end())
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QWidget* button : buttons)
        button->installEventFilter(this);
    lower();
    follow();
}

bool Tray::holds(const QWidget& control)
{
    const auto trays = control.parentWidget() != nullptr
        ? control.parentWidget()->findChildren<const Tray*>(Qt::FindDirectChildrenOnly)
        : QList<const Tray*>();
    return std::any_of(trays.begin(), trays.end(), [&](const Tray* tray) {
        return std::find(tray->m_buttons.begin(), tray->m_buttons.end(), &control)
            != tray->m_buttons.end();
    });
}

void Tray::follow()
{
    QRect covered;
    for (const QPointer<QWidget>& button : m_buttons) {
        if (button && button->isVisibleTo(parentWidget()))
            covered |= button->geometry();
    }
    const int margin = qRound(Margin * factorOf(this));
    setGeometry(covered.adjusted(-margin, -margin, margin, margin));
    setVisible(!covered.isNull());
}

bool Tray::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
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

void Tray::paintEvent(QPaintEvent*)
{
    const double radius = Radius * factorOf(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(look::Slate));
    painter.drawRoundedRect(rect(), radius, radius);
}

} // namespace ui
