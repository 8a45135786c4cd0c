#include "display.h"

#include "ui/look.h"

#include <QFileInfo>
#include <QPainter>
#include <QScreen>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

constexpr QRgb Desktop = 0xFF8C96A0;
constexpr QRgb TitleBar = 0xFFDDE1E6;
constexpr int TitleHeight = 30;

void drawFramed(QPainter& painter, const QPixmap& window, QPoint place, const QString& title)
{
    const QRect bar(place.x(), place.y() - TitleHeight, window.width(), TitleHeight);
    painter.fillRect(bar, QColor(TitleBar));
    painter.setPen(QColor(ui::look::Ink));
    painter.setFont(ui::look::scaled(ui::look::Instruction, 1));
    painter.drawText(bar, Qt::AlignCenter, title);
    painter.drawPixmap(place, window);
}

} // namespace

LaptopDisplay::LaptopDisplay()
{
    const bool written = m_description.open()
        && m_description.write(
               R"({"windowFrameMargins": false, "screens": [{"name": "laptop", "x": 0, "y": 0,
                  "width": 1366, "height": 768, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
            > 0
        && m_description.flush();
    if (!written)
        qFatal("no description of the display");
    qputenv("QT_QPA_PLATFORM",
        "offscreen:configfile=" + QFileInfo(m_description).fileName().toUtf8());
}

QPixmap onDisplay(QWidget& window, QWidget* box)
{
    QPixmap display(window.screen()->size());
    display.fill(QColor(Desktop));
    QPainter painter(&display);
    // Where a frame takes room from the window, the window manager has moved it down.
    const QPoint place(window.x(), std::max(window.y(), TitleHeight));
    drawFramed(painter, window.grab(), place, window.windowTitle());
    if (box != nullptr) {
        QRect over = box->rect();
        over.moveCenter(QRect(place, window.size()).center());
        over.moveTop(std::max(over.top(), TitleHeight));
        drawFramed(painter, box->grab(), over.topLeft(), box->windowTitle());
    }
    return display;
}

} // namespace gallery
