#pragma once

#include <QString>

class QWidget;

namespace ui {

/// Has a screen reader speak a text, in whatever state it is: a new exercise or a verdict,
/// again when it is the same as before. It is spoken behind what the focus of the running
/// handler comes to rest on, once the window of the control, or the box in front of it, is the
/// active one.
void announce(QWidget& control, const QString& text);

} // namespace ui
