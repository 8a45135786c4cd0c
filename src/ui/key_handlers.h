#pragma once

#include "core/defect.h"
#include "ui/keys.h"

#include <functional>

class QWidget;

namespace ui {

class HandlerGuard;

/// Connects the keys and the focus of controls with handlers, each of which runs guarded; where
/// is the line that connects it.
class KeyHandlers {
public:
    /// The guard must outlive the controls.
    explicit KeyHandlers(HandlerGuard& guard);

    /// On a window itself: the keys that no control has used.
    void onKeyDown(QWidget* control, KeyFilter::DownHandler handler,
        core::SourceLine where = core::SourceLine::here());
    void onKeyPress(QWidget* control, KeyFilter::PressHandler handler,
        core::SourceLine where = core::SourceLine::here());
    void onKeyUp(QWidget* control, KeyFilter::UpHandler handler,
        core::SourceLine where = core::SourceLine::here());
    /// Enter (both Enter keys) in a box runs the handler and is swallowed.
    void onEnter(QWidget* control, std::function<void()> handler,
        core::SourceLine where = core::SourceLine::here());
    /// Getting the focus back from a box, a menu or another program is no news: the control had
    /// it all the time as far as its window is concerned.
    void onGotFocus(QWidget* control, std::function<void()> handler,
        core::SourceLine where = core::SourceLine::here());

private:
    KeyResult guardedKey(const std::function<KeyResult()>& body, core::SourceLine where);

    HandlerGuard& m_guard;
};

} // namespace ui
