#pragma once

#include <QImage>

namespace ui {

/// The picture in this file of a folder. Throws core::FileError, which names the file, when
/// it is missing, cannot be read or is not a whole picture.
QImage loadPicture(const QString& folder, const QString& fileName);

} // namespace ui
