#include "ui/marker_stripe.h"

#include "ui/look.h"
#include "ui/scaling.h"
#include "ui/text_box.h"

#include <QPainter>

namespace ui {

namespace {

constexpr double Overlap = 5; // beyond the texts, in pixels at factor 1
constexpr double ChalkWidth = 3;

/// Where the text of a box stands, on its parent.
QRect textPlace(const TextBox& box)
{
    const int wide = box.fontMetrics().horizontalAdvance(box.text());
    const QRect inner = box.geometry().marginsRemoved(box.textMargins());
    QRect place(0, inner.top(), wide, inner.height());
    if (box.alignment() & Qt::AlignHCenter)
        place.moveCenter(inner.center());
    else if (box.alignment() & Qt::AlignRight)
        place.moveRight(inner.right());
    else
        place.moveLeft(inner.left());
    return place;
}

} // namespace

MarkerStripe::MarkerStripe(const std::vector<TextBox*>& boxes, Kind kind)
    : Underlay({boxes.begin(), boxes.end()})
    , m_kind(kind)
{
    for (TextBox* box : boxes) {
        QPalette palette = box->palette();
        palette.setColor(QPalette::Highlight, Qt::transparent);
        palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
        box->setPalette(palette);
        connect(box, &QLineEdit::selectionChanged, this, &MarkerStripe::follow);
        connect(box, &QLineEdit::textChanged, this, &MarkerStripe::follow);
    }
    stackUnder(boxes.front());
    follow();
}

QRect MarkerStripe::placeOf(const QWidget& control) const
{
    const auto& box = static_cast<const TextBox&>(control); // it was made with no others
    return box.hasSelectedText() ? textPlace(box) : QRect();
}

QRect MarkerStripe::around(const QRect& covered) const
{
    const int overlap = qRound(Overlap * factorOf(this));
    return covered.adjusted(-overlap, 0, overlap, 0);
}

void MarkerStripe::paintEvent(QPaintEvent*)
{
    const double factor = factorOf(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_kind == Kind::Marker) {
        const double radius = Overlap * factor;
        painter.setBrush(QColor(look::Marker));
        painter.drawRoundedRect(rect(), radius, radius);
        return;
    }
    const double line = ChalkWidth * factor;
    painter.setBrush(QColor(look::Chalk));
    painter.drawRoundedRect(QRectF(0, height() - line, width(), line), line / 2, line / 2);
}

} // namespace ui
