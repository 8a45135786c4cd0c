#include "support/sample_screen.h"
#include "support/screen_bench.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

class TextBoxTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
    }
    void cleanup() { bench.reset(); }

    void selectionOutlivesTheLossOfFocus()
    {
        screen->entry->setFocus();
        QTest::keyClicks(screen->entry, u"123"_s);
        screen->entry->setSelection(0, 2);
        screen->lines->setFocus();
        QCOMPARE(screen->entry->selectedText(), u"12"_s);
        QCOMPARE(screen->entry->cursorPosition(), 2);
    }

    void shownSelectionOutlivesAnotherWindow()
    {
        screen->shown->showSelected();
        screen->entry->setFocus();
        QWidget other;
        other.show();
        makeActive(other);
        makeActive(*screen);
        QCOMPARE(screen->shown->selectedText(), u"12"_s);
    }

    void shownTextIsDeafToTheMouseAndTheTabKey()
    {
        screen->shown->showSelected();
        const QPoint place = screen->shown->mapTo(screen, screen->shown->rect().center());
        QTest::mouseClick(screen->windowHandle(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(screen->windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(screen->shown->selectedText(), u"12"_s);
        screen->entry->setFocus();
        QTest::keyClick(screen->entry, Qt::Key_Tab);
        QVERIFY(screen->lines->hasFocus());
        QTest::keyClick(screen->lines, Qt::Key_Tab);
        QVERIFY(screen->command->hasFocus());
    }

    void shownTextThatMayHaveTheFocusGetsItByAClick()
    {
        screen->shown->allowFocus(Qt::ClickFocus);
        const QPoint place = screen->shown->mapTo(screen, screen->shown->rect().center());
        QTest::mouseClick(screen->windowHandle(), Qt::LeftButton, {}, place);
        QVERIFY(screen->shown->hasFocus());
    }

    void shownTextIsStillTextToAssistiveTools()
    {
        QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(screen->shown);
        QCOMPARE(shown->role(), QAccessible::StaticText);
        QVERIFY(shown->state().readOnly);
        QCOMPARE(shown->text(QAccessible::Name), u"Dato"_s);
        QCOMPARE(shown->text(QAccessible::Value), u"12"_s);
    }

    void shownTextThatMayHaveTheFocusIsABoxToAssistiveTools()
    {
        screen->shown->allowFocus(Qt::TabFocus);
        QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(screen->shown);
        QCOMPARE(shown->role(), QAccessible::EditableText);
        QVERIFY(shown->state().readOnly && !shown->state().editable);
        QVERIFY(shown->editableTextInterface() == nullptr);
    }

    void assistiveToolsHearOnlyOfWhatTheWriterSelects()
    {
        ui::TextBox& entry = *screen->entry;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&entry);
        QAccessibleTextInterface* text = face->textInterface();
        screen->lines->setFocus();
        entry.setText(u"123"_s);
        QTest::keyClick(screen->lines, Qt::Key_Backtab);
        QVERIFY(entry.hasFocus());
        QCOMPARE(entry.selectedText(), u"123"_s); // by the toolkit
        QCOMPARE(text->selectionCount(), 0);
        QTest::keyClick(&entry, Qt::Key_End);
        QTest::keyClick(&entry, Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(text->selectionCount(), 1);
        int start = 0;
        int end = 0;
        text->selection(0, &start, &end);
        QCOMPARE(start, 2);
        QCOMPARE(end, 3);
        screen->lines->setFocus();
        QCOMPARE(text->selectionCount(), 1); // it stays, and whose it is
        entry.selectAll();
        QCOMPARE(text->selectionCount(), 0);
    }

    void entryBoxIsAnEditableTextToAssistiveTools()
    {
        ui::TextBox& entry = *screen->entry;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&entry);
        QCOMPARE(face->role(), QAccessible::EditableText);
        QVERIFY(face->state().editable && !face->state().readOnly);
        QCOMPARE(face->text(QAccessible::Name), u"Respuesta"_s);
        face->editableTextInterface()->insertText(0, u"134"_s);
        face->editableTextInterface()->replaceText(1, 2, u"2"_s);
        QCOMPARE(face->text(QAccessible::Value), u"124"_s);
        face->editableTextInterface()->deleteText(2, 3);
        QCOMPARE(entry.text(), u"12"_s);
        QCOMPARE(face->textInterface()->characterCount(), 2);
        QCOMPARE(face->textInterface()->text(1, 2), u"2"_s);
        face->textInterface()->setCursorPosition(1);
        QCOMPARE(face->textInterface()->cursorPosition(), 1);
        const QRect second = face->textInterface()->characterRect(1);
        QCOMPARE(face->textInterface()->offsetAtPoint(second.center()), 1);
        entry.setReadOnly(true);
        QVERIFY(face->editableTextInterface() == nullptr && face->state().readOnly);
    }

    void longShownTextShowsItsBeginning()
    {
        screen->shown->setText(QString(200, u'9'));
        screen->shown->showSelected();
        QCOMPARE(screen->shown->cursorPosition(), 0);
        QCOMPARE(screen->shown->selectedText().size(), 200);
    }

    void verdictKeepsItsTextAndMark()
    {
        ui::VerdictBox verdict(screen);
        verdict.setVerdict(u"resultado incorrecto "_s, ui::VerdictBox::Mark::Wrong);
        QCOMPARE(verdict.text(), u"resultado incorrecto "_s);
        QCOMPARE(verdict.mark(), ui::VerdictBox::Mark::Wrong);
        verdict.setVerdict({}, ui::VerdictBox::Mark::None);
        QCOMPARE(verdict.text(), QString());
    }

    void verdictDrawsItsMarkInItsColour()
    {
        ui::VerdictBox verdict(screen);
        verdict.resize(200, 30);
        const auto shows = [&](QRgb colour) {
            const QImage image = verdict.grab().toImage();
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < 26; ++x)
                    if (image.pixel(x, y) == colour)
                        return true;
            return false;
        };
        verdict.setVerdict(u"x"_s, ui::VerdictBox::Mark::Right);
        QVERIFY(shows(ui::look::Right));
        verdict.setVerdict(u"x"_s, ui::VerdictBox::Mark::Wrong);
        QVERIFY(shows(ui::look::Wrong));
        verdict.setVerdict(u"x"_s, ui::VerdictBox::Mark::None);
        QVERIFY(!shows(ui::look::Right) && !shows(ui::look::Wrong));
    }

    void retiredVerdictKeepsItsTextAlone()
    {
        ui::VerdictBox verdict(screen);
        const auto colour = [&] { return verdict.palette().color(QPalette::Text); };
        verdict.setVerdict(u"resultado incorrecto "_s, ui::VerdictBox::Mark::Wrong);
        QCOMPARE(colour(), QColor(ui::look::Ink));
        verdict.retire();
        QCOMPARE(verdict.text(), u"resultado incorrecto "_s);
        QCOMPARE(verdict.mark(), ui::VerdictBox::Mark::None);
        QCOMPARE(colour(), QColor(ui::look::Quiet));
        verdict.retire();
        verdict.setVerdict(u"Resultado correcto"_s, ui::VerdictBox::Mark::Right);
        QCOMPARE(verdict.mark(), ui::VerdictBox::Mark::Right);
        QCOMPARE(colour(), QColor(ui::look::Ink));
    }

    void verdictKeepsThePaletteOfItsScreen()
    {
        ui::VerdictBox verdict(screen);
        QPalette own = verdict.palette();
        own.setColor(QPalette::Base, Qt::red);
        own.setColor(QPalette::Text, Qt::blue);
        verdict.setPalette(own);
        verdict.setVerdict(u"Resultado correcto"_s, ui::VerdictBox::Mark::Right);
        QCOMPARE(verdict.palette().color(QPalette::Base), QColor(Qt::red));
        QCOMPARE(verdict.palette().color(QPalette::Text), QColor(Qt::blue));
        verdict.retire();
        QCOMPARE(verdict.palette().color(QPalette::Base), QColor(Qt::red));
        verdict.setVerdict(u"Resultado correcto"_s, ui::VerdictBox::Mark::Right);
        QCOMPARE(verdict.palette().color(QPalette::Text), QColor(Qt::blue));
    }

private:
    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(TextBoxTest)
#include "text_box_test.moc"
