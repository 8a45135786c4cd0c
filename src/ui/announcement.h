#pragma once

#include <QString>

class QWidget;

namespace ui {

/// Lets assistive tools speak a text that a control has begun to show, a new exercise or a
/// verdict, wherever the focus is.
void announce(QWidget& control, const QString& text);

} // namespace ui
