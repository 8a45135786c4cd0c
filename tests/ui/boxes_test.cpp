#include "support/sample_screen.h"
#include "support/screen_bench.h"
#include "ui/box_strip.h"
#include "ui/boxes.h"
#include "ui/opening_factor.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Counts how often a widget is given another size.
class Resizes : public QObject {
public:
    int count = 0;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        count += event->type() == QEvent::Resize ? 1 : 0;
        return QObject::eventFilter(object, event);
    }
};

} // namespace

class BoxesTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        screen = &bench->open<SampleScreen>();
    }
    void cleanup() { bench.reset(); }

    void messageHasTheTextAsWrittenAndOneSpanishButton()
    {
        const QString text = u"hasta   que se  <b>pulse</b> &1\r\nfin "_s;
        BoxAnswerer boxes(u"Aceptar"_s);
        ui::MessageBox::show(*screen, text);
        QCOMPARE(boxes.texts, {text});
        QCOMPARE(boxes.titles, {u"Pizarrin"_s});
        QCOMPARE(boxes.buttons, {u"Aceptar"_s});
        QCOMPARE(boxes.icons, {QMessageBox::NoIcon});
    }

    void linesOfAMessageStayWholeAtEveryFactor_data()
    {
        QTest::addColumn<double>("factor");

        QTest::newRow("1") << 1.0;
        QTest::newRow("1.3") << 1.3;
    }
    void linesOfAMessageStayWholeAtEveryFactor()
    {
        QFETCH(double, factor);
        screen->resize((QSizeF(screen->size()) * factor / screen->factor()).toSize());
        // As long as 70 % of the display allow, beside margins and icon, and as reads well.
        const double room = std::min(
            0.7 * screen->screen()->availableGeometry().width() - 110 * factor, 600 * factor);
        const QFontMetrics metrics(ui::look::scaled(ui::look::BoxText, factor));
        QString line = u"errores"_s;
        while (metrics.horizontalAdvance(line + u" errores"_s) < room)
            line += u" errores"_s;
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog& box) {
            const auto& label = ScreenBench::find<QLabel>(box, u"qt_msgbox_label"_s);
            QVERIFY(label.width() >= label.fontMetrics().horizontalAdvance(line));
        };
        ui::MessageBox::show(*screen, line + u"\r\nfin"_s);
    }

    void aMessageIsAsWideAsItsTextNeeds()
    {
        constexpr int WiderThanTheToolkitAllows = 1400;
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog& box) {
            auto& label = ScreenBench::find<QLabel>(box, u"qt_msgbox_label"_s);
            label.setMinimumWidth(WiderThanTheToolkitAllows);
            QCoreApplication::sendPostedEvents(&box, QEvent::LayoutRequest);
            QVERIFY(label.width() >= WiderThanTheToolkitAllows);
            QVERIFY(box.rect().contains(label.geometry()));

            Resizes resizes; // not even there and back
            box.installEventFilter(&resizes);
            QCoreApplication::postEvent(&box, new QEvent(QEvent::LayoutRequest));
            QCoreApplication::sendPostedEvents(&box, QEvent::LayoutRequest);
            QCOMPARE(resizes.count, 0);
        };
        ui::MessageBox::show(*screen, u"a"_s);
    }

    void aBoxIsNoLargerThanTheDisplayBears()
    {
        const double most = screen->screen()->availableGeometry().height() / 400.0;
        for (const double factor : {1.0, 40.0}) {
            ui::setWindowFactor(*screen, factor);
            BoxAnswerer boxes({u"Aceptar"_s, u"Cancelar"_s});
            boxes.whileOpen = [&](QDialog& box) {
                const auto expected = static_cast<int>(18 * std::min(factor, most));
                for (const QPushButton* button : box.findChildren<QPushButton*>()) {
                    QCOMPARE(button->font().pixelSize(), expected);
                    QCOMPARE(button->height(), qRound(44 * std::min(factor, most)));
                }
            };
            ui::MessageBox::show(*screen, u"a"_s);
            ui::InputBox::ask(*screen, u"a"_s, u"b"_s);
        }
    }

    void onlyButtonsStandOnTheStrip()
    {
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s, u"Cancelar"_s, u"Cancelar"_s});
        boxes.whileOpen = [](QDialog& box) {
            const QWidget* strip = nullptr;
            for (const QWidget* part : box.findChildren<QWidget*>()) {
                if (dynamic_cast<const ui::BoxStrip*>(part) != nullptr)
                    strip = part;
            }
            QVERIFY(strip);
            for (const QWidget* part : box.findChildren<QWidget*>()) {
                const bool shown = qobject_cast<const QLabel*>(part) != nullptr
                    || qobject_cast<const QLineEdit*>(part) != nullptr;
                if (shown && part->isVisible())
                    QVERIFY2(
                        part->mapTo(&box, part->contentsRect().bottomLeft()).y() < strip->y(),
                        qPrintable(part->objectName()));
            }
        };
        ui::MessageBox::show(*screen, u"a"_s, u"Atención"_s, ui::Icon::Information);
        ui::MessageBox::show(*screen, QString(9, u'\n'));
        ui::InputBox::ask(*screen, {}, u"Introducir dividendo"_s);
        ui::InputBox::ask(*screen, u"Escriba un número."_s, u"Introducir"_s);
    }

    void messageHasItsTitleAndIcon()
    {
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s, u"Aceptar"_s});
        ui::MessageBox::show(*screen, u"a"_s, u"Atención"_s, ui::Icon::Information);
        ui::MessageBox::show(*screen, u"b"_s, u"Pizarrin"_s, ui::Icon::Exclamation);
        ui::MessageBox::show(*screen, u"c"_s, u"Error"_s, ui::Icon::Critical);
        QCOMPARE(boxes.titles, (QStringList{u"Atención"_s, u"Pizarrin"_s, u"Error"_s}));
        QCOMPARE(boxes.icons,
            (QList<QMessageBox::Icon>{
                QMessageBox::Information, QMessageBox::Warning, QMessageBox::Critical}));
    }

    void escapeClosesAMessage()
    {
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); };
        ui::MessageBox::show(*screen, u"a"_s); // comes back
        QCOMPARE(boxes.texts.size(), 1);
    }

    void questionIsAnsweredYesOrNo()
    {
        BoxAnswerer boxes({u"Sí"_s, u"No"_s});
        QVERIFY(ui::MessageBox::ask(*screen, u"¿Otra vez?"_s, u"GAME OVER"_s));
        QVERIFY(!ui::MessageBox::ask(*screen, u"¿Otra vez?"_s, u"GAME OVER"_s));
        QCOMPARE(boxes.buttons.size(), 2);
        QVERIFY(boxes.buttons.contains(u"Sí"_s) && boxes.buttons.contains(u"No"_s));
        QCOMPARE(boxes.icons.first(), QMessageBox::NoIcon);
    }

    void questionIsNotAnsweredByEscapeOrTheCloseBox()
    {
        BoxAnswerer boxes(u"Sí"_s);
        boxes.whileOpen = [](QDialog& box) {
            QTest::keyClick(&box, Qt::Key_Escape);
            box.close();
            QVERIFY(box.isVisible());
        };
        QVERIFY(ui::MessageBox::ask(*screen, u"¿Otra vez?"_s));
    }

    void enterAnswersYes()
    {
        BoxAnswerer boxes(u"Sí"_s);
        bool stillOpen = true;
        boxes.whileOpen = [&](QDialog& box) {
            QTest::keyClick(&box, Qt::Key_Return);
            stillOpen = box.isVisible();
        };
        QVERIFY(ui::MessageBox::ask(*screen, u"¿Otra vez?"_s));
        QVERIFY(!stillOpen);
    }

    void inputGivesWhatWasTyped()
    {
        BoxAnswerer boxes({{u"3 ñ"_s, u"Aceptar"_s}});
        QCOMPARE(ui::InputBox::ask(*screen, u"valor mínimo posible: "_s, u"Insertar dato"_s),
            u"3 ñ"_s);
        QCOMPARE(boxes.texts, {u"valor mínimo posible: "_s});
        QCOMPARE(boxes.titles, {u"Insertar dato"_s});
        QVERIFY(boxes.buttons.contains(u"Aceptar"_s) && boxes.buttons.contains(u"Cancelar"_s));
        QCOMPARE(boxes.buttons.size(), 2);
    }

    void aLongTextIsSeenWhole()
    {
        QStringList lines;
        for (int i = 1; i <= 13; ++i)
            lines << u"número %1: 0 errores."_s.arg(i);
        const int free = screen->screen()->availableGeometry().height();
        screen->resize(screen->size() * (free / 450.0));
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog& box) {
            QVERIFY2(box.height() + ui::FrameHeight <= free,
                qPrintable(QString::number(box.height())));
            QVERIFY(QFontInfo(box.font()).pixelSize() >= 15);
        };
        ui::MessageBox::show(*screen, lines.join(u"\r\n"_s));
        QCOMPARE(boxes.texts, {lines.join(u"\r\n"_s)});
    }

    void cancelledInputIsEmpty()
    {
        BoxAnswerer boxes({{u"3"_s, u"Cancelar"_s}});
        QCOMPARE(ui::InputBox::ask(*screen, u"valor"_s, u"título"_s), QString());
    }

    void promptShowsAnAmpersandAsWritten()
    {
        BoxAnswerer boxes({{u""_s, u"Aceptar"_s}});
        boxes.whileOpen = [](QDialog& box) {
            auto& label = ScreenBench::find<QLabel>(box, QString());
            QCOMPARE(label.buddy(), nullptr);
            QCOMPARE(label.text(), u"Utilice &1 para el primero"_s);
        };
        ui::InputBox::ask(*screen, u"Utilice &1 para el primero"_s, u"título"_s);
    }

    void noHandlerStartsBehindABox()
    {
        int clicks = 0;
        int ticks = 0;
        screen->whenClicked = [&] { ++clicks; };
        screen->whenTicked = [&] { ++ticks; };
        screen->clock->start();
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog&) {
            screen->command->click();
            QMetaObject::invokeMethod(screen->clock, "timeout", Qt::DirectConnection);
            QCOMPARE(clicks, 0);
            QCOMPARE(ticks, 0);
        };
        ui::MessageBox::show(*screen, u"a"_s);
        screen->command->click();
        QCOMPARE(clicks, 1);
    }

    void aBoxThatCameUpByItselfTakesNothingAtFirst_data()
    {
        QTest::addColumn<bool>("question");
        QTest::newRow("message") << false;
        QTest::newRow("question") << true;
    }
    void aBoxThatCameUpByItselfTakesNothingAtFirst()
    {
        QFETCH(bool, question);
        bench->clock.passingWithEachLook = 0ms;
        screen->whenTicked = [&] { openBox(question ? 1 : 0); };
        BoxAnswerer boxes{question ? u"Sí"_s : u"Aceptar"_s};
        boxes.whileOpen = [&](QDialog& box) {
            bench->clock.passed += 799ms;
            tryToLeave(box);
            QVERIFY(box.isVisible());
            bench->clock.passed += 1ms;
        };
        bench->tick(u"Timer1"_s);
        QCOMPARE(boxes.texts.size(), 1);
    }

    void aBoxThatWasAskedForTakesKeysAtOnce()
    {
        bench->clock.passingWithEachLook = 0ms;
        screen->whenTicked = [] {};
        bench->tick(u"Timer1"_s);
        screen->whenClicked = [&] { openBox(0); };
        BoxAnswerer boxes{u"Aceptar"_s};
        boxes.whileOpen = [&](QDialog& box) {
            QTest::keyClick(box.windowHandle(), Qt::Key_Return);
            QVERIFY(!box.isVisible());
        };
        screen->command->click();
    }

    void handlerEndsBehindABoxWhenItsScreenWentAway()
    {
        bool wentOn = false;
        const QPointer<SampleScreen> alive(screen);
        screen->whenClicked = [&] {
            ui::MessageBox::show(*screen, u"a"_s);
            wentOn = true;
        };
        BoxAnswerer boxes(u"Aceptar"_s);
        boxes.whileOpen = [&](QDialog& box) {
            screen->unload();
            QVERIFY(!box.isVisible());
            QVERIFY(alive); // its handler is still running
        };
        QTimer::singleShot(0, screen, [this] { screen->command->click(); });
        QTRY_VERIFY(!alive);
        QVERIFY(!wentOn);
        QCOMPARE(boxes.texts.size(), 1);
    }

    void closingBehindABoxUnloadsTheScreenOnce_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("message") << 0;
        QTest::newRow("question") << 1;
        QTest::newRow("input") << 2;
    }
    void closingBehindABoxUnloadsTheScreenOnce()
    {
        QFETCH(int, kind);
        QStringList order;
        const QPointer<SampleScreen> alive(screen);
        screen->whenUnloading = [&] { order << u"unloading"_s; };
        screen->whenClicked = [&] {
            openBox(kind);
            order << u"went on"_s;
        };
        BoxAnswerer boxes(u"none"_s);
        boxes.whileOpen = [&](QDialog& box) {
            connect(&box, &QDialog::finished, this, [&] { order << u"box closed"_s; });
            screen->close();
            QVERIFY(!box.isVisible());
            QVERIFY(!screen->isVisible());
            QVERIFY(alive); // its handler is still running
            screen->close();
            screen->unload();
        };
        screen->command->click();
        QCOMPARE(order, (QStringList{u"unloading"_s, u"box closed"_s}));
        QCOMPARE(boxes.texts.size(), 1);
        QTRY_VERIFY(!alive);
    }

    void screenOutlivesABoxThatNoHandlerOpened()
    {
        const QPointer<SampleScreen> alive(screen);
        BoxAnswerer boxes(u"none"_s);
        boxes.whileOpen = [&](QDialog&) {
            screen->close();
            runPendingEvents(); // lets what is to be destroyed go
            QVERIFY(alive);
        };
        QVERIFY_THROWS_EXCEPTION(ui::ScreenUnloaded, ui::MessageBox::show(*screen, u"a"_s));
        QTRY_VERIFY(!alive);
    }

    void closingBehindTheBoxOfAnErrorEndsTheHandler()
    {
        const QPointer<SampleScreen> alive(screen);
        screen->whenClicked = [] { throw core::Error(u"No hay banco."_s); };
        BoxAnswerer boxes(u"none"_s);
        boxes.whileOpen = [&](QDialog& box) {
            screen->close();
            QVERIFY(!box.isVisible());
        };
        screen->command->click();
        QCOMPARE(boxes.texts, {u"No hay banco."_s});
        QTRY_VERIFY(!alive);
        QCOMPARE(bench->screens.loaded(u"Sample"_s), nullptr);
    }

private:
    void openBox(int kind) const
    {
        if (kind == 0)
            ui::MessageBox::show(*screen, u"a"_s);
        else if (kind == 1)
            ui::MessageBox::ask(*screen, u"a"_s);
        else
            ui::InputBox::ask(*screen, u"a"_s, u"b"_s);
    }

    /// Every way out of a box but a button's click by a program.
    static void tryToLeave(QDialog& box)
    {
        auto* button = box.findChild<QPushButton*>();
        QTest::mouseClick(button, Qt::LeftButton);
        const QPoint place = button->mapTo(&box, button->rect().center());
        QTest::mouseClick(box.windowHandle(), Qt::LeftButton, {}, place);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape})
            QTest::keyClick(box.windowHandle(), key);
        QTest::keyClick(box.windowHandle(), Qt::Key_F4, Qt::AltModifier);
        QTest::keyClick(button, Qt::Key_Return);
    }

    std::unique_ptr<ScreenBench> bench;
    SampleScreen* screen = nullptr;
};

PIZARRIN_SCREEN_TEST_MAIN(BoxesTest)
#include "boxes_test.moc"
