#include "ui/text_box.h"

#include "ui/look.h"
#include "ui/text_box_accessible.h"

#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>

#include <algorithm>

namespace ui {

namespace {

constexpr double CaretGap = 6; // from the upper and lower edge, in pixels at factor 1

} // namespace

TextBox::TextBox(Kind kind, QWidget* parent)
    : QLineEdit(parent)
    , m_kind(kind)
{
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { update(); });
    connect(this, &QLineEdit::selectionChanged, this,
        [this] { m_byHand = !m_selecting && hasFocus(); });
    hideOrdinaryCaret();
    installTextBoxAccessible();
    if (m_kind == Kind::Display) {
        setReadOnly(true);
        setFrame(false);
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setPalette(look::displayed());
        parent->installEventFilter(this);
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
    TextBox::setFactor(factor()); // its own part alone: a derived one may have led here
}

void TextBox::showSelected()
{
    // From the end: with the caret in front, a long text shows its beginning.
    const auto length = static_cast<int>(text().size());
    select(length, -length);
}

void TextBox::selectAll()
{
    select(0, static_cast<int>(text().size()));
}

void TextBox::select(int start, int length)
{
    const QScopedValueRollback selecting(m_selecting, true);
    setSelection(start, length);
}

bool TextBox::event(QEvent* event)
{
    // QLineEdit would drop the highlight of a box without focus here.
    if (event->type() == QEvent::WindowActivate)
        return QWidget::event(event); // NOLINT(bugprone-parent-virtual-call)
    return QLineEdit::event(event);
}

/// What is deaf to the mouse is never under it: its parent is asked for the tool tip.
bool TextBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::ToolTip && isVisible()
        && testAttribute(Qt::WA_TransparentForMouseEvents) && !toolTip().isEmpty()) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (geometry().contains(help->pos())) {
            QToolTip::showText(help->globalPos(), toolTip(), parentWidget(), geometry());
            return true;
        }
    }
    return QLineEdit::eventFilter(watched, event);
}

void TextBox::focusInEvent(QFocusEvent* event)
{
    const QScopedValueRollback selecting(m_selecting, true); // whoever comes by key finds it all
    QLineEdit::focusInEvent(event);
}

void TextBox::focusOutEvent(QFocusEvent* event)
{
    const bool byHand = m_byHand;
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
    m_byHand = byHand;
}

void TextBox::inputMethodEvent(QInputMethodEvent* event)
{
    QLineEdit::inputMethodEvent(event);
    if (event->preeditString().isEmpty())
        hideOrdinaryCaret();
}

/// It would be painted in the inverse of the ground, as thin as a letter.
void TextBox::hideOrdinaryCaret()
{
    QInputMethodEvent hidden({}, {{QInputMethodEvent::Cursor, 0, 0, {}}});
    QLineEdit::inputMethodEvent(&hidden);
}

QRect TextBox::caretRect() const
{
    constexpr int Beside = 5; // what the toolkit's rectangle keeps free left of the caret
    const int thickness = std::max(1, qRound(look::thick(look::CaretWidth) * factor()));
    const int gap = qRound(CaretGap * factor());
    const int left = cursorRect().left() + Beside - thickness / 2;
    const QRect line(left, cursorRect().top(), thickness, cursorRect().height());
    return line.intersected(rect().adjusted(0, gap, 0, -gap));
}

void TextBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (m_edge)
        drawEdge();
    if (hasFocus() && !isReadOnly() && !hasSelectedText())
        QPainter(this).fillRect(caretRect(), QColor(look::Focus));
}

void TextBox::drawEdge()
{
    const double pen = look::thick(look::JudgedEdgeWidth) * factor();
    const double radius = look::BoxRadius * factor();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(*m_edge, pen));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2), radius, radius);
}

void TextBox::setEdge(const std::optional<QColor>& colour)
{
    if (m_edge == colour)
        return;
    m_edge = colour;
    update();
}

} // namespace ui
