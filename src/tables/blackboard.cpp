#include "tables/blackboard.h"

#include "tables/wood.h"
#include "ui/look.h"

#include <QPainter>

#include <algorithm>

namespace tables {

namespace {

constexpr QRgb Board = 0xFF24493A;
constexpr QRgb Felt = 0xFF3B4A57; // of the sponge on the ledge

// Pixels at factor 1.
constexpr double Frame = 8;
constexpr double LedgeHeight = 7; // below the frame
constexpr double LedgeOverhang = 4; // on either side of it
constexpr double SlipRadius = 4;
constexpr double TextMargin = 10;

} // namespace

QPalette chalk()
{
    QPalette palette = ui::look::displayed();
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, QColor(ui::look::Chalk));
    return palette;
}

Blackboard::Blackboard(QWidget* parent)
    : QWidget(parent)
{
}

ui::TwipRect Blackboard::around(const ui::TwipRect& writing)
{
    const double side = ui::twips(Frame + LedgeOverhang);
    return {writing.left - side, writing.top - ui::twips(Frame), writing.width + 2 * side,
        writing.height + ui::twips(2 * Frame + LedgeHeight)};
}

void Blackboard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double overhang = LedgeOverhang * factor();
    const double frame = Frame * factor();
    const QRectF outer = QRectF(rect()).adjusted(overhang, 0, -overhang, -LedgeHeight * factor());
    drawWood(painter, outer, factor());
    painter.fillRect(outer.adjusted(frame, frame, -frame, -frame), QColor(Board));
    paintLedge(painter);
}

void Blackboard::paintLedge(QPainter& painter) const
{
    constexpr double ChalkLeft = 26;
    constexpr double SpongeRight = 30;
    const double f = factor();
    const double thick = (LedgeHeight + 2) * f;
    const QRectF ledge(0, height() - thick, width(), thick);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(ui::look::Chalk));
    painter.drawRoundedRect(QRectF(ChalkLeft * f, ledge.top() - 4 * f, 22 * f, 4 * f), f, f);
    painter.setBrush(QColor(Felt));
    painter.drawRoundedRect(
        QRectF(ledge.right() - (SpongeRight + 26) * f, ledge.top() - 6 * f, 26 * f, 6 * f), f, f);
    drawWood(painter, ledge, f);
}

Slip::Slip(QWidget* parent)
    : QWidget(parent)
{
}

ui::TwipRect Slip::under(const ui::TwipRect& place)
{
    return {place.left - Margin, place.top - Margin, place.width + 2 * Margin,
        place.height + 2 * Margin};
}

void Slip::paintEvent(QPaintEvent*)
{
    const double radius = SlipRadius * factor();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ui::look::paper());
    painter.drawRoundedRect(rect(), radius, radius);
}

BoardText::BoardText(QWidget* parent)
    : Memo(Kind::Display, parent)
{
    setLineWrapMode(NoWrap);
    setPalette(chalk());
    connect(this, &QPlainTextEdit::textChanged, this, &BoardText::centre);
}

void BoardText::setFactor(double factor)
{
    Memo::setFactor(factor);
    centre();
}

void BoardText::resizeEvent(QResizeEvent* event)
{
    Memo::resizeEvent(event);
    centre();
}

void BoardText::centre()
{
    const auto lines = static_cast<int>(toPlainText().trimmed().count(u'\n')) + 1;
    const int top = std::max(0, (height() - lines * fontMetrics().lineSpacing()) / 2);
    const int left = qRound(TextMargin * factor());
    const QMargins margins(left, top, 0, 0);
    if (margins != viewportMargins())
        setViewportMargins(margins);
}

} // namespace tables
