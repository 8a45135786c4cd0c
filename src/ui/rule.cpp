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
    QPainter painter(this);
    painter.fillRect(0, 0, width(), std::max(1, qRound(2 * factor())), QColor(look::Ink));
}

} // namespace ui
