#include "ui/text_box.h"

#include "ui/announcement.h"
#include "ui/look.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace ui {

namespace {

constexpr double MarkGap = 8; // pixels at factor 1

void drawTick(QPainter& painter, const QRectF& square)
{
    QPainterPath path(QPointF(square.left() + square.width() * 0.08, square.center().y()));
    path.lineTo(square.left() + square.width() * 0.38, square.bottom() - square.height() * 0.16);
    path.lineTo(square.right() - square.width() * 0.06, square.top() + square.height() * 0.14);
    painter.drawPath(path);
}

void drawCross(QPainter& painter, const QRectF& square)
{
    const double inset = square.width() * 0.16;
    const QRectF inner = square.adjusted(inset, inset, -inset, -inset);
    painter.drawLine(inner.topLeft(), inner.bottomRight());
    painter.drawLine(inner.topRight(), inner.bottomLeft());
}

} // namespace

TextBox::TextBox(Kind kind, QWidget* parent)
    : QLineEdit(parent)
    , m_kind(kind)
{
    if (m_kind == Kind::Display) {
        setReadOnly(true);
        setFrame(false);
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setPalette(look::displayed());
    }
}

void TextBox::allowFocus(Qt::FocusPolicy policy)
{
    setFocusPolicy(policy);
    setAttribute(Qt::WA_TransparentForMouseEvents, policy == Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
}

void TextBox::setFactor(double factor)
{
    Scalable::setFactor(factor);
    const double inner = m_kind == Kind::Entry ? look::BoxMargin : 0;
    setTextMargins(
        qRound((inner + m_extraLeft) * factor), 0, qRound((inner + m_extraRight) * factor), 0);
}

void TextBox::setExtraMargins(double left, double right)
{
    m_extraLeft = left;
    m_extraRight = right;
    setFactor(factor());
}

void TextBox::showSelected()
{
    // From the end: with the caret in front, a long text shows its beginning.
    const auto length = static_cast<int>(text().size());
    setSelection(length, -length);
}

bool TextBox::event(QEvent* event)
{
    // QLineEdit would drop the highlight of a box without focus here.
    if (event->type() == QEvent::WindowActivate)
        return QWidget::event(event);
    return QLineEdit::event(event);
}

void TextBox::focusOutEvent(QFocusEvent* event)
{
    const int start = selectionStart();
    const auto length = static_cast<int>(selectedText().size());
    const int caret = cursorPosition();
    QLineEdit::focusOutEvent(event);
    if (start < 0)
        return;
    // The caret stays at the end of the selection at which it stood.
    if (caret == start)
        setSelection(start + length, -length);
    else
        setSelection(start, length);
}

VerdictBox::VerdictBox(QWidget* parent)
    : TextBox(Kind::Display, parent)
{
    setMarkSize(m_markSize);
}

void VerdictBox::setMarkSize(double pixels)
{
    m_markSize = pixels;
    setExtraMargins(m_markSize + MarkGap, 0);
}

void VerdictBox::setVerdict(const QString& text, Mark mark)
{
    m_mark = mark;
    if (m_palette)
        setPalette(*std::exchange(m_palette, std::nullopt));
    setText(text);
    update();
    if (!text.isEmpty())
        announce(*this, text);
}

void VerdictBox::retire()
{
    m_mark = Mark::None;
    if (!m_palette)
        m_palette = palette();
    QPalette quiet = *m_palette;
    quiet.setColor(QPalette::Text, QColor(look::Quiet));
    setPalette(quiet);
    update();
}

void VerdictBox::paintEvent(QPaintEvent* event)
{
    TextBox::paintEvent(event);
    if (m_mark == Mark::None || text().isEmpty())
        return;
    const double size = std::min(m_markSize * factor(), height() - 2.0);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour(m_mark == Mark::Right ? look::Right : look::Wrong);
    painter.setPen(QPen(colour, size * 0.18, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QRectF square(2 * factor(), (height() - size) / 2, size, size);
    if (m_mark == Mark::Right)
        drawTick(painter, square);
    else
        drawCross(painter, square);
}

} // namespace ui
