#include "ui/boxes.h"

#include "ui/application.h"
#include "ui/box_strip.h"
#include "ui/handler_guard.h"
#include "ui/look.h"
#include "ui/message_window.h"
#include "ui/opening_factor.h"
#include "ui/reading_pause.h"
#include "ui/scaling.h"

#include <QApplication>
#include <QBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr double InputWidth = 500; // pixels at factor 1

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

QPointer<MessageWindow> makeWindow(HandlerGuard& owner, MessageWindow::Kind kind,
    const QString& text, const QString& title, const QString& notes = {})
{
    installToolkitTexts(); // a text in a box can be copied
    QPointer<MessageWindow> box(new MessageWindow(kind, parentOf(owner)));
    box->setWindowTitle(title);
    box->setTexts(text, notes, owner.guardedWindow());
    return box;
}

} // namespace

QString MessageBox::programTitle()
{
    return u"Pizarrin"_s;
}

void MessageBox::show(HandlerGuard& owner, const QString& text, const QString& title, Icon icon,
    const QString& notes)
{
    const QPointer<MessageWindow> box =
        makeWindow(owner, MessageWindow::Kind::Report, text, title, notes);
    box->setIcon(toQtIcon(icon));
    box->setDefaultButton(box->addButton(u"Aceptar"_s, QMessageBox::AcceptRole));
    run(owner, box.data());
}

bool MessageBox::ask(HandlerGuard& owner, const QString& text, const QString& title)
{
    const QPointer<MessageWindow> box =
        makeWindow(owner, MessageWindow::Kind::Question, text, title);
    QPushButton* yes = box->addButton(u"Sí"_s, QMessageBox::YesRole);
    box->addButton(u"No"_s, QMessageBox::NoRole);
    box->setDefaultButton(yes);
    bool answer = false;
    QObject::connect(box, &QMessageBox::buttonClicked, box,
        [&answer, yes](const QAbstractButton* pressed) { answer = pressed == yes; });
    run(owner, box.data());
    return answer;
}

QString InputBox::ask(HandlerGuard& owner, const QString& prompt, const QString& title)
{
    const double factor = overlayFactorOf(owner.guardedWindow());
    const QPointer<QInputDialog> box(new QInputDialog(parentOf(owner)));
    setWindowFactor(*box, factor);
    box->setFont(look::scaled(look::BoxText, factor));
    box->setWindowTitle(title);
    box->setOkButtonText(u"Aceptar"_s);
    box->setCancelButtonText(u"Cancelar"_s);
    box->setLabelText(prompt);
    const int width =
        std::min(qRound(InputWidth * factor), largestBoxWidth(owner.guardedWindow()));
    box->resize(width, box->height());
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
    if (auto* column = qobject_cast<QBoxLayout*>(box->layout())) // clear of the strip below
        column->insertSpacing(column->count() - 1, box->fontMetrics().height() / 2);
    QString answer;
    QObject::connect(box, &QInputDialog::textValueSelected, box,
        [&answer](const QString& text) { answer = text; });
    run(owner, box.data());
    return answer;
}

} // namespace ui
