#include "ui/message_window.h"

#include "ui/look.h"
#include "ui/opening_factor.h"
#include "ui/scaling.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr double LargestShare = 0.7; // of the display's width
// Pixels at factor 1.
constexpr double LongestLine = 600;
constexpr double ShortestLine = 220; // so that the title can be read
constexpr double BoxFrame = 110; // what a box needs beside its text, icon included
constexpr double BoxEnds = 106; // what it needs above and below: margins and buttons
constexpr int SmallestText = 12;

const QString TextLabel = u"qt_msgbox_label"_s; // the toolkit's names
const QString NotesLabel = u"qt_msgbox_informativelabel"_s;
const QString IconLabel = u"qt_msgboxex_icon_label"_s;

/// The usual font, or the largest in which all lines of a long text are seen at once.
QFont fontFor(const QString& text, const QWidget& window)
{
    const double factor = overlayFactorOf(window);
    const double room =
        window.screen()->availableGeometry().height() - FrameHeight - BoxEnds * factor;
    const auto lines = static_cast<int>(text.count(u'\n')) + 1;
    look::Font font = look::BoxText;
    const auto isTooHigh = [&] {
        return lines * QFontMetrics(look::scaled(font, factor)).lineSpacing() > room;
    };
    while (font.pixels > SmallestText && isTooHigh())
        --font.pixels;
    return look::scaled(font, factor);
}

} // namespace

double largestBoxWidth(const QWidget& window)
{
    return LargestShare * window.screen()->availableGeometry().width();
}

MessageWindow::MessageWindow(Kind kind, QWidget* parent)
    : QMessageBox(parent)
    , m_kind(kind)
{
}

void MessageWindow::setTexts(const QString& text, const QString& notes, const QWidget& window)
{
    setWindowFactor(*this, overlayFactorOf(window));
    setFont(fontFor(text, window));
    setTextFormat(Qt::PlainText);
    setText(text);
    addNotes(notes);
    widen(window);
}

/// The toolkit would take what looks like mark-up in them for it, whatever the box is told.
void MessageWindow::addNotes(const QString& notes)
{
    if (notes.isEmpty())
        return;
    setInformativeText(notes);
    if (auto* label = findChild<QLabel*>(NotesLabel))
        label->setTextFormat(Qt::PlainText);
}

/// Lets the text be as wide as its longest line, up to a measure that grows with the font.
/// Left alone, the box would wrap at the same number of pixels at every factor.
void MessageWindow::widen(const QWidget& window)
{
    const double factor = overlayFactorOf(window);
    auto* label = findChild<QLabel*>(TextLabel);
    if (label == nullptr)
        return;
    // Newer toolkits let Tab stop at the text, and then no reader says it with the title.
    label->setFocusPolicy(Qt::NoFocus);
    const QFontMetrics metrics(font());
    label->setIndent(0);
    int longest = qRound(ShortestLine * factor);
    for (const QString& line : (text() + u'\n' + informativeText()).split(u'\n'))
        longest = std::max(longest, metrics.horizontalAdvance(line) + 1);
    const double room = largestBoxWidth(window) - BoxFrame * factor;
    label->setMinimumWidth(std::min({longest, qRound(LongestLine * factor), qRound(room)}));
}

/// The toolkit gives a box its own width again when its layout has changed. A box that has come
/// up must not change its size there and back: its place may not be known yet, and would be lost.
bool MessageWindow::event(QEvent* event)
{
    if (event->type() != QEvent::LayoutRequest || !m_isWide)
        return QMessageBox::event(event);
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the toolkit's box, which is meant
    const bool isDone = QDialog::event(event);
    holdText();
    return isDone;
}

void MessageWindow::resizeEvent(QResizeEvent* event)
{
    QMessageBox::resizeEvent(event);
    holdText();
}

void MessageWindow::showEvent(QShowEvent* event)
{
    dropIconGap();
    keepTextClear();
    QMessageBox::showEvent(event);
}

void MessageWindow::keyPressEvent(QKeyEvent* event)
{
    if (m_kind == Kind::Question && event->matches(QKeySequence::Cancel))
        event->ignore();
    else
        QMessageBox::keyPressEvent(event);
}

void MessageWindow::closeEvent(QCloseEvent* event)
{
    if (m_kind == Kind::Question)
        event->ignore();
    else
        QMessageBox::closeEvent(event);
}

/// The toolkit makes no box wider than 1000 pixels and lets the text stand out.
void MessageWindow::holdText()
{
    const int needed = layout()->totalMinimumSize().width();
    if (!isVisible() || !layout()->hasHeightForWidth() || needed <= width())
        return;
    m_isWide = true;
    setFixedSize(needed, layout()->totalHeightForWidth(needed));
}

/// Of the strip under the buttons; the toolkit has set margins of its own meanwhile, for
/// the text too, whose lines they would break.
void MessageWindow::keepTextClear()
{
    const int line = fontMetrics().height();
    auto* notes = findChild<QLabel*>(NotesLabel);
    if (notes != nullptr)
        notes->setContentsMargins(0, 0, 0, line);
    if (auto* text = findChild<QLabel*>(TextLabel))
        text->setContentsMargins(0, 0, 0, notes != nullptr ? 0 : line / 2);
    if (auto* sign = findChild<QLabel*>(IconLabel)) {
        sign->setContentsMargins(0, 0, 0, line / 2);
        layout()->invalidate();
    }
}

/// Without an icon the text begins where the margin ends.
void MessageWindow::dropIconGap()
{
    auto* grid = qobject_cast<QGridLayout*>(layout());
    QLayoutItem* first =
        icon() == NoIcon && grid != nullptr ? grid->itemAtPosition(0, 0) : nullptr;
    if (first == nullptr || first->spacerItem() == nullptr)
        return;
    first->spacerItem()->changeSize(0, 1, QSizePolicy::Fixed, QSizePolicy::Fixed);
    grid->setHorizontalSpacing(0);
    grid->invalidate();
}

} // namespace ui
