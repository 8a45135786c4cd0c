#pragma once

#include <QIcon>
#include <QStyle>

namespace ui {

/// The icon of a message box, drawn at the size asked for in pixels; null for a pixmap that
/// is no such icon. The toolkit's own stay small on large displays.
QIcon boxIcon(QStyle::StandardPixmap pixmap, int size);

} // namespace ui
