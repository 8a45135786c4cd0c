#include "ui/reading_pause.h"

#include "core/clock.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QWindow>

namespace ui {

namespace {

bool isKeyOrClick(QEvent::Type type)
{
    switch (type) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::ContextMenu:
        return true;
    default:
        return false;
    }
}

} // namespace

ReadingPause::ReadingPause(QDialog& box, const core::Clock& clock)
    : m_box(box)
    , m_clock(clock)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ReadingPause::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_box && event->type() == QEvent::Show)
        m_shownAt = m_clock.elapsed();
    const bool closes = event->type() == QEvent::Close && event->spontaneous();
    if ((!closes && !isKeyOrClick(event->type())) || !isOfBox(watched) || isOver())
        return false;
    event->setAccepted(!closes); // an accepted key is no shortcut either
    return true;
}

bool ReadingPause::isOfBox(QObject* watched) const
{
    if (watched->isWindowType())
        return watched == m_box.windowHandle();
    return watched->isWidgetType() && static_cast<QWidget*>(watched)->window() == &m_box;
}

bool ReadingPause::isOver() const
{
    return m_shownAt && m_clock.elapsed() - *m_shownAt >= Length;
}

} // namespace ui
