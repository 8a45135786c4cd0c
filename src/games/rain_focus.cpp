#include "games/rain_focus.h"

#include "core/clock.h"
#include "games/rain_drop.h"
#include "ui/control_factory.h"

using namespace Qt::StringLiterals;

namespace games {

namespace {

/// A key pressed so soon after a launch has taken the focus was meant for the number before.
constexpr std::chrono::milliseconds TimeToNotice{250};

} // namespace

RainFocus::RainFocus(ui::ControlFactory& controls, const core::Clock& clock)
    : m_clock(clock)
    , PbFoco(controls.add(new QWidget(controls.canvas()), u"PbFoco"_s, {-300, 0, 150, 150}))
{
    PbFoco->setFocusPolicy(Qt::ClickFocus);
}

QWidget* RainFocus::focused() const
{
    return PbFoco->window()->focusWidget();
}

void RainFocus::rest()
{
    PbFoco->setFocus();
}

void RainFocus::leave(const QWidget* control)
{
    if (focused() == control)
        rest();
}

void RainFocus::take(QWidget* number)
{
    m_taken.reset();
    if (dynamic_cast<RainDrop*>(focused()) != nullptr)
        m_taken = m_clock.elapsed();
    number->setFocus();
}

bool RainFocus::isUnnoticed() const
{
    return m_taken && m_clock.elapsed() - *m_taken < TimeToNotice;
}

} // namespace games
