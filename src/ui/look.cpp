#include "ui/look.h"

#include "ui/fonts.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace ui::look {

namespace {

double luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

QColor mixedWithPaper(const QColor& fill)
{
    const QColor ground = paper();
    return QColor((fill.red() + ground.red()) / 2, (fill.green() + ground.green()) / 2,
        (fill.blue() + ground.blue()) / 2);
}

} // namespace

QFont scaled(const Font& font, double factor)
{
    QFont result(familiesOf(font.family));
    // Cut, not rounded: a text that fits at factor 1 then fits at every factor.
    result.setPixelSize(std::max(1, static_cast<int>(font.pixels * factor + 0.001)));
    result.setBold(font.bold);
    if (font.spacing != 100)
        result.setLetterSpacing(QFont::PercentageSpacing, font.spacing);
    if (font.family == Family::CourierNew)
        result.setStyleHint(QFont::Monospace);
    return result;
}

Contrast contrastOfApplication()
{
    const QColor ground = QGuiApplication::palette().color(QPalette::Active, QPalette::Window);
    return ground == QColor(Qt::white) ? Contrast::High : Contrast::Usual;
}

void setContrast(Contrast contrast)
{
    QApplication::setPalette(palette(contrast));
    QEvent changed(contrastEvent());
    for (QWidget* widget : QApplication::allWidgets()) {
        QCoreApplication::sendEvent(widget, &changed);
        widget->update();
    }
}

QEvent::Type contrastEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

QColor paper()
{
    return contrastOfApplication() == Contrast::High ? QColor(Qt::white) : QColor(Paper);
}

QColor quiet()
{
    return contrastOfApplication() == Contrast::High ? QColor(Ink) : QColor(Quiet);
}

double thick(double width)
{
    return contrastOfApplication() == Contrast::High ? 2 * width : width;
}

QPalette palette(Contrast contrast)
{
    const QColor ink(Ink);
    const QColor quiet(Quiet);
    const QColor paper = contrast == Contrast::High ? QColor(Qt::white) : QColor(Paper);
    const QColor card(Card);
    const QColor line(Edge);

    QPalette palette(ink, paper, card, line.darker(150), line, ink, card, card, paper);
    palette.setColor(QPalette::AlternateBase, paper);
    palette.setColor(QPalette::Button, QColor(0xFFECE6D8));
    palette.setColor(QPalette::Highlight, QColor(Focus));
    palette.setColor(QPalette::HighlightedText, card);
    palette.setColor(QPalette::Link, QColor(Focus));
    palette.setColor(QPalette::LinkVisited, QColor(Focus));
    palette.setColor(QPalette::ToolTipBase, card);
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, quiet);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, quiet);
    palette.setColor(QPalette::Disabled, QPalette::Base, paper);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, line.lighter(150));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, ink);
    return palette;
}

QPalette displayed()
{
    QPalette result = palette();
    result.setColor(QPalette::Base, Qt::transparent);
    result.setColor(QPalette::Text, QColor(Ink));
    result.setColor(QPalette::Highlight, QColor(Marker));
    result.setColor(QPalette::HighlightedText, QColor(Ink));
    return result;
}

QPalette onSlate()
{
    QPalette result = palette();
    result.setColor(QPalette::Window, QColor(Slate));
    result.setColor(QPalette::WindowText, QColor(Chalk));
    result.setColor(QPalette::Highlight, QColor(FocusOnSlate));
    result.setColor(QPalette::HighlightedText, QColor(Slate));
    return result;
}

QPalette filled(const QColor& fill)
{
    QPalette result = palette();
    result.setColor(QPalette::Button, fill);
    result.setColor(QPalette::ButtonText, inkOn(fill));
    const QColor faded = mixedWithPaper(fill);
    const QColor quiet(Quiet);
    result.setColor(QPalette::Disabled, QPalette::Button, faded);
    result.setColor(QPalette::Disabled, QPalette::ButtonText,
        contrast(quiet, faded) >= ReadableContrast ? quiet : inkOn(faded));
    return result;
}

QColor edgeOf(const QColor& fill)
{
    constexpr double Share = 0.6;
    return QColor::fromRgbF(static_cast<float>(fill.redF() * Share),
        static_cast<float>(fill.greenF() * Share), static_cast<float>(fill.blueF() * Share));
}

double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor inkOn(const QColor& fill)
{
    const QColor ink(Ink);
    if (contrast(ink, fill) >= ReadableContrast)
        return ink;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrast(black, fill) >= contrast(white, fill) ? black : white;
}

} // namespace ui::look
