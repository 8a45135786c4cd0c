#include "ui/marker_stripe.h"

#include "ui/look.h"
#include "ui/scaling.h"
#include "ui/text_box.h"

#include <QEvent>
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
    : QWidget(boxes.front()->parentWidget())
    , m_boxes(boxes.begin(), boxes.end())
    , m_kind(kind)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    for (TextBox* box : boxes) {
        QPalette palette = box->palette();
        palette.setColor(QPalette::Highlight, Qt::transparent);
        palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
        box->setPalette(palette);
        box->installEventFilter(this);
        connect(box, &QLineEdit::selectionChanged, this, &MarkerStripe::follow);
        connect(box, &QLineEdit::textChanged, this, &MarkerStripe::follow);
    }
    stackUnder(boxes.front());
    follow();
}

void MarkerStripe::follow()
{
    QRect covered;
    for (const QPointer<TextBox>& box : m_boxes) {
        if (box && box->hasSelectedText() && box->isVisibleTo(parentWidget()))
            covered |= textPlace(*box);
    }
    const int overlap = qRound(Overlap * factorOf(this));
    setGeometry(covered.adjusted(-overlap, 0, overlap, 0));
    setVisible(!covered.isNull());
}

bool MarkerStripe::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        follow();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
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
