#include "games/token_row.h"

#include "ui/marks.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace games {

namespace {

constexpr double Unlit = 0.28; // opacity
constexpr double ShareOfCell = 0.9;
constexpr QRgb HeartRed = 0xFFFF5A6E;
constexpr QRgb HeartEdge = 0xFFFFD9DE;

void drawHeart(QPainter& painter, const QRectF& square)
{
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(square.width(), square.height());
    QPainterPath heart(QPointF(0.5, 0.92));
    heart.cubicTo(0.02, 0.58, 0.02, 0.14, 0.28, 0.12);
    heart.cubicTo(0.42, 0.11, 0.5, 0.22, 0.5, 0.3);
    heart.cubicTo(0.5, 0.22, 0.58, 0.11, 0.72, 0.12);
    heart.cubicTo(0.98, 0.14, 0.98, 0.58, 0.5, 0.92);
    painter.setPen(QPen(QColor(HeartEdge), 0.06, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(HeartRed));
    painter.drawPath(heart);
    painter.restore();
}

} // namespace

TokenRow::TokenRow(Shape shape, int tokens, QWidget* parent)
    : QWidget(parent)
    , m_shape(shape)
    , m_tokens(tokens)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void TokenRow::setLit(int tokens)
{
    m_lit = std::clamp(tokens, 0, m_tokens);
    update();
}

void TokenRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double cell = static_cast<double>(width()) / m_tokens;
    const double size = ShareOfCell * std::min(cell, static_cast<double>(height()));
    for (int token = 0; token < m_tokens; ++token) {
        painter.setOpacity(token < m_lit ? 1 : Unlit);
        const QRectF square(token * cell + (cell - size) / 2, (height() - size) / 2, size, size);
        if (m_shape == Shape::Star)
            ui::drawStar(painter, square);
        else
            drawHeart(painter, square);
    }
}

} // namespace games
