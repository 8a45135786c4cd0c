#pragma once

#include "support/box_watcher.h"
#include "support/typing.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include <deque>
#include <functional>
#include <initializer_list>

/// Answers the message and input boxes that come up, in order, by the caption of a button,
/// and keeps what they said. A box that no answer is left for fails the test.
class BoxAnswerer {
public:
    struct Answer {
        Answer(const QString& caption)
            : button(caption)
        {
        }
        Answer(const QString& keys, const QString& caption)
            : typed(keys)
            , button(caption)
        {
        }
        QString typed; ///< into an input box, through the keyboard
        QString button;
    };

    BoxAnswerer(std::initializer_list<Answer> answers = {})
        : m_answers(answers)
    {
    }
    explicit BoxAnswerer(const QString& button)
        : BoxAnswerer({Answer(button)})
    {
    }
    ~BoxAnswerer()
    {
        if (!m_answers.empty())
            QTest::qFail("a box that the test waits for did not come up", __FILE__, __LINE__);
    }

    QStringList texts;
    QStringList titles;
    QList<QMessageBox::Icon> icons;
    QStringList buttons; ///< captions of the last box, from left to right

    /// Called while a box is open, before it is answered; may answer or close it itself.
    std::function<void(QDialog&)> whileOpen;

private:
    void answer(QDialog& box)
    {
        const QPointer<QDialog> open(&box);
        keep(box);
        if (whileOpen)
            whileOpen(box);
        if (!open || !box.isVisible()) {
            if (!m_answers.empty())
                m_answers.pop_front(); // whileOpen answered it
            return;
        }
        if (m_answers.empty()) {
            QTest::qFail(qPrintable(QStringLiteral("an unasked box: ") + texts.constLast()),
                __FILE__, __LINE__);
            box.done(QDialog::Rejected);
            return;
        }
        const Answer answer = m_answers.front();
        m_answers.pop_front();
        if (auto* edit = box.findChild<QLineEdit*>())
            typeInto(edit, answer.typed);
        press(box, answer.button);
    }

    void keep(QDialog& box)
    {
        titles << box.windowTitle();
        if (auto* message = qobject_cast<QMessageBox*>(&box)) {
            texts << message->text();
            icons << message->icon();
        } else if (auto* input = qobject_cast<QInputDialog*>(&box)) {
            texts << input->labelText();
            icons << QMessageBox::NoIcon;
        }
        buttons.clear();
        for (QPushButton* button : box.findChildren<QPushButton*>())
            buttons << button->text();
    }

    void press(QDialog& box, const QString& caption)
    {
        for (QPushButton* button : box.findChildren<QPushButton*>()) {
            if (button->text() == caption) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        QTest::qFail(
            qPrintable(QStringLiteral("no such button: ") + caption), __FILE__, __LINE__);
        box.done(QDialog::Rejected);
    }

    std::deque<Answer> m_answers;
    BoxWatcher m_watcher{[this](QDialog& box) { answer(box); }};
};
