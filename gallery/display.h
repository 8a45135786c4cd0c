#pragma once

#include <QPixmap>
#include <QTemporaryFile>

class QWidget;

namespace gallery {

/// The display of a school laptop, 1366x768, for the toolkit's offscreen platform. To be made
/// before the application, which it must outlive.
class LaptopDisplay {
public:
    LaptopDisplay();

private:
    // In the current folder: the platform takes the colon of a drive for the end of a name.
    QTemporaryFile m_description{QStringLiteral("display")};
};

/// The whole display with a window where it has come up, in a plain frame with its title, and
/// over it a box, where there is one.
QPixmap onDisplay(QWidget& window, QWidget* box);

} // namespace gallery
