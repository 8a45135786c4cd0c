#include "ui/boxes.h"

#include "ui/application.h"
#include "ui/box_strip.h"
#include "ui/handler_guard.h"
#include "ui/look.h"
#include "ui/opening_factor.h"
#include "ui/reading_pause.h"
#include "ui/scaling.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr double LargestShare = 0.7; // of the display's width, for a box
constexpr double InputWidth = 500; // pixels at factor 1
constexpr double LongestLine = 600;
constexpr double ShortestLine = 220; // so that the title can be read
constexpr double BoxFrame = 110; // what a box needs beside its text, icon included
constexpr double BoxEnds = 106; // what it needs above and below: margins and buttons
constexpr int SmallestText = 12;

const QString TextLabel = u"qt_msgbox_label"_s; // the toolkit's names
const QString NotesLabel = u"qt_msgbox_informativelabel"_s;

/// A message box that is left only by one of its buttons when it asks a question: a stray
/// Escape must not answer "No".
class Box final : public QMessageBox {
public:
    Box(QWidget* parent, bool question)
        : QMessageBox(parent)
        , m_question(question)
    {
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QMessageBox::resizeEvent(event);
        holdText();
    }
    void showEvent(QShowEvent* event) override
    {
        dropIconGap();
        keepTextClear();
        QMessageBox::showEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (m_question && event->matches(QKeySequence::Cancel))
            event->ignore();
        else
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override
    {
        if (m_question)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }

private:
    /// The toolkit makes no box wider than 1000 pixels and lets the text stand out.
    void holdText()
    {
        const int needed = layout()->totalMinimumSize().width();
        if (isVisible() && layout()->hasHeightForWidth() && needed > width())
            setFixedSize(needed, layout()->totalHeightForWidth(needed));
    }

    /// Of the strip under the buttons; the toolkit has set margins of its own meanwhile, for
    /// the text too, whose lines they would break.
    void keepTextClear()
    {
        const int line = fontMetrics().height();
        auto* notes = findChild<QLabel*>(NotesLabel);
        if (notes != nullptr)
            notes->setContentsMargins(0, 0, 0, line);
        if (auto* text = findChild<QLabel*>(TextLabel))
            text->setContentsMargins(0, 0, 0, notes != nullptr ? 0 : line / 2);
    }

    /// Without an icon the text begins where the margin ends.
    void dropIconGap()
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

    bool m_question;
};

QMessageBox::Icon toQtIcon(Icon icon)
{
    switch (icon) {
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QWidget* parentOf(HandlerGuard& owner)
{
    QWidget& window = owner.guardedWindow();
    return window.isVisible() ? &window : QApplication::activeWindow();
}

/// Runs a box as owner's. The box lives on the heap: it is deleted with its parent when
/// that is unloaded behind it.
void run(HandlerGuard& owner, const QPointer<QDialog>& box)
{
    BoxStrip::layUnderButtons(*box);
    std::optional<ReadingPause> pause;
    if (owner.isInTick())
        pause.emplace(*box, owner.clock());
    owner.wait(box, [&box] {
        box->exec();
        if (box)
            box->deleteLater();
    });
}

double largestWidth(const QWidget& owner)
{
    return LargestShare * owner.screen()->availableGeometry().width();
}

/// The usual font, or the largest in which all lines of a long text are seen at once.
QFont fontFor(const QString& text, const QWidget& owner)
{
    const double factor = factorOf(&owner);
    const double room =
        owner.screen()->availableGeometry().height() - FrameHeight - BoxEnds * factor;
    const auto lines = static_cast<int>(text.count(u'\n')) + 1;
    look::Font font = look::BoxText;
    const auto isTooHigh = [&] {
        return lines * QFontMetrics(look::scaled(font, factor)).lineSpacing() > room;
    };
    while (font.pixels > SmallestText && isTooHigh())
        --font.pixels;
    return look::scaled(font, factor);
}

/// Lets the text be as wide as its longest line, up to a measure that grows with the font.
/// Left alone, the box would wrap at the same number of pixels at every factor.
void widen(const Box& box, const QWidget& owner)
{
    const double factor = factorOf(&owner);
    auto* label = box.findChild<QLabel*>(TextLabel);
    if (label == nullptr)
        return;
    const QFontMetrics metrics(box.font());
    label->setIndent(0);
    int longest = qRound(ShortestLine * factor);
    for (const QString& line : (box.text() + u'\n' + box.informativeText()).split(u'\n'))
        longest = std::max(longest, metrics.horizontalAdvance(line) + 1);
    const double room = largestWidth(owner) - BoxFrame * factor;
    label->setMinimumWidth(std::min({longest, qRound(LongestLine * factor), qRound(room)}));
}

/// The toolkit would take what looks like mark-up in them for it, whatever the box is told.
void addNotes(Box& box, const QString& notes)
{
    if (notes.isEmpty())
        return;
    box.setInformativeText(notes);
    if (auto* label = box.findChild<QLabel*>(NotesLabel))
        label->setTextFormat(Qt::PlainText);
}

QPointer<Box> makeBox(HandlerGuard& owner, const QString& text, const QString& title,
    bool question, const QString& notes = {})
{
    installToolkitTexts(); // a text in a box can be copied
    QPointer<Box> box(new Box(parentOf(owner), question));
    box->setFont(fontFor(text, owner.guardedWindow()));
    box->setWindowTitle(title);
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    addNotes(*box, notes);
    widen(*box, owner.guardedWindow());
    return box;
}

QPushButton* addButton(QMessageBox& box, const QString& caption, QMessageBox::ButtonRole role)
{
    QPushButton* button = box.addButton(caption, role);
    button->setIcon({});
    return button;
}

} // namespace

QString MessageBox::programTitle()
{
    return u"Pizarrin"_s;
}

void MessageBox::show(HandlerGuard& owner, const QString& text, const QString& title, Icon icon,
    const QString& notes)
{
    const QPointer<Box> box = makeBox(owner, text, title, false, notes);
    box->setIcon(toQtIcon(icon));
    box->setDefaultButton(addButton(*box, u"Aceptar"_s, QMessageBox::AcceptRole));
    run(owner, box.data());
}

bool MessageBox::ask(HandlerGuard& owner, const QString& text, const QString& title)
{
    const QPointer<Box> box = makeBox(owner, text, title, true);
    QPushButton* yes = addButton(*box, u"Sí"_s, QMessageBox::YesRole);
    addButton(*box, u"No"_s, QMessageBox::NoRole);
    box->setDefaultButton(yes);
    bool answer = false;
    QObject::connect(box, &QMessageBox::buttonClicked, box,
        [&answer, yes](const QAbstractButton* pressed) { answer = pressed == yes; });
    run(owner, box.data());
    return answer;
}

QString InputBox::ask(HandlerGuard& owner, const QString& prompt, const QString& title)
{
    const double factor = factorOf(&owner.guardedWindow());
    const QPointer<QInputDialog> box(new QInputDialog(parentOf(owner)));
    box->setFont(look::scaled(look::BoxText, factor));
    box->setWindowTitle(title);
    box->setOkButtonText(u"Aceptar"_s);
    box->setCancelButtonText(u"Cancelar"_s);
    box->setLabelText(prompt);
    const double width = std::min(InputWidth * factor, largestWidth(owner.guardedWindow()));
    box->resize(qRound(width), box->height());
    if (auto* label = box->findChild<QLabel*>()) {
        label->setBuddy(nullptr); // else an "&1" in the prompt would be an access key
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    if (auto* edit = box->findChild<QLineEdit*>()) {
        const int margin = qRound(look::BoxMargin * factor);
        edit->setTextMargins(margin, 0, margin, 0);
        edit->setAccessibleName(prompt.isEmpty() ? title : prompt);
    }
    QString answer;
    QObject::connect(box, &QInputDialog::textValueSelected, box,
        [&answer](const QString& text) { answer = text; });
    run(owner, box.data());
    return answer;
}

} // namespace ui
