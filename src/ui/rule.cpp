#include "ui/rule.h"

#include "ui/look.h"

#include <QPainter>

#include <algorithm>

namespace ui {

Rule::Rule(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Rule::paintEvent(QPaintEvent*)
{
    const int thickness = std::max(1, qRound(2 * factor()));
    QRect line = rect();
    if (width() < height())
        line.setWidth(thickness);
    else
        line.setHeight(thickness);
    QPainter(this).fillRect(line, QColor(look::Ink));
}

} // namespace ui
