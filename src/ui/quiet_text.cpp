#include "ui/quiet_text.h"

#include "ui/look.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace ui {

QuietText::QuietText(QWidget* control, bool quiet)
    : QObject(control)
    , m_control(control)
{
    control->installEventFilter(this);
    setQuiet(quiet);
}

void QuietText::setQuiet(bool quiet)
{
    if (!quiet) {
        if (m_before)
            m_control->setPalette(*std::exchange(m_before, std::nullopt));
        return;
    }
    if (!m_before)
        m_before = m_control->palette();
    QPalette colours = *m_before;
    for (QPalette::ColorRole text :
        {QPalette::Text, QPalette::WindowText, QPalette::HighlightedText})
        colours.setColor(text, look::quiet());
    m_control->setPalette(colours);
}

bool QuietText::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == look::contrastEvent() && m_before)
        setQuiet(true);
    return QObject::eventFilter(watched, event);
}

} // namespace ui
