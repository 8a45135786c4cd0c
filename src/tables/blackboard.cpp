#include "tables/blackboard.h"

#include "ui/look.h"

#include <QPainter>

#include <algorithm>

namespace tables {

namespace {

constexpr QRgb Board = 0xFF24493A;
constexpr QRgb BoardSelected = 0xFF2B5444;
constexpr QRgb Chalk = 0xFFFAF7F0;
constexpr double Radius = 6; // pixels at factor 1
constexpr double Margin = 10;

} // namespace

QPalette chalk()
{
    QPalette palette = ui::look::displayed();
    palette.setColor(QPalette::Base, QColor(Board));
    palette.setColor(QPalette::Text, QColor(Chalk));
    palette.setColor(QPalette::Highlight, QColor(BoardSelected));
    palette.setColor(QPalette::HighlightedText, QColor(Chalk));
    return palette;
}

Blackboard::Blackboard(QWidget* parent)
    : QWidget(parent)
{
}

void Blackboard::paintEvent(QPaintEvent*)
{
    const double radius = Radius * factor();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Board));
    painter.drawRoundedRect(rect(), radius, radius);
}

BoardText::BoardText(QWidget* parent)
    : Memo(Kind::Display, parent)
    , m_board(new Blackboard(this))
{
    m_board->lower();
    setLineWrapMode(NoWrap);
    QPalette transparent = chalk();
    transparent.setColor(QPalette::Base, Qt::transparent);
    setPalette(transparent);
    connect(this, &QPlainTextEdit::textChanged, this, &BoardText::centre);
}

void BoardText::setFactor(double factor)
{
    Memo::setFactor(factor);
    m_board->setFactor(factor);
    centre();
}

void BoardText::resizeEvent(QResizeEvent* event)
{
    Memo::resizeEvent(event);
    m_board->resize(size());
    centre();
}

void BoardText::centre()
{
    const auto lines = static_cast<int>(toPlainText().trimmed().count(u'\n')) + 1;
    const int top = std::max(0, (height() - lines * fontMetrics().lineSpacing()) / 2);
    const int left = qRound(Margin * factor());
    const QMargins margins(left, top, 0, 0);
    if (margins != viewportMargins())
        setViewportMargins(margins);
}

} // namespace tables
