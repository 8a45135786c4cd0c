#include "ui/control_factory.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// Controls on a plain canvas: none of them needs a screen.
class ControlFactoryTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        canvas = std::make_unique<QWidget>();
        make = std::make_unique<ui::ControlFactory>(canvas.get());
    }
    void cleanup()
    {
        canvas.reset();
        make.reset();
    }

    void everyControlIsNamedPlacedAndOnTheCanvas()
    {
        const QList<QWidget*> controls{
            make->entryBox(u"Entry"_s, Place, Large, u"Respuesta"_s),
            make->displayBox(u"Shown"_s, Place, Large, u"Dato"_s, u"12"_s),
            make->verdictBox(u"Verdict"_s, Place, u"Resultado"_s),
            make->memo(u"Memo"_s, Place, Large, u"Enunciado"_s),
            make->displayMemo(u"Lines"_s, Place, Large, u"Suma"_s, u"1\n2"_s),
            make->button(u"Command"_s, u"&Hecho"_s, Place, ui::look::Yellow),
            make->label(u"Label"_s, u"&Resultado"_s, Place),
        };
        const QStringList names{u"Entry"_s, u"Shown"_s, u"Verdict"_s, u"Memo"_s, u"Lines"_s,
            u"Command"_s, u"Label"_s};
        for (qsizetype i = 0; i < controls.size(); ++i) {
            QCOMPARE(controls.at(i)->objectName(), names.at(i));
            QCOMPARE(controls.at(i)->parentWidget(), canvas.get());
            QCOMPARE(controls.at(i)->geometry(), QRect(10, 20, 100, 40));
        }
    }

    void textsAndNamesForAssistiveToolsAreThere()
    {
        QCOMPARE(
            make->entryBox({}, Place, Large, u"Respuesta"_s)->accessibleName(), u"Respuesta"_s);
        const auto* shown = make->displayBox({}, Place, Large, u"Dato"_s, u"12"_s);
        QCOMPARE(shown->accessibleName(), u"Dato"_s);
        QCOMPARE(shown->text(), u"12"_s);
        QVERIFY(shown->isReadOnly());
        QCOMPARE(
            make->displayMemo({}, Place, Large, u"Suma"_s, u"1\n2"_s)->toPlainText(), u"1\n2"_s);
        QCOMPARE(make->button({}, u"&Hecho"_s, Place, ui::look::Yellow)->text(), u"&Hecho"_s);
    }

    void aLabelLeadsToItsBuddy()
    {
        auto* box = make->entryBox(u"Entry"_s, Place, Large, u"Respuesta"_s);
        const auto* label = make->label({}, u"<b>&1</b>"_s, Place, ui::look::Instruction, box);
        QCOMPARE(label->buddy(), box);
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }

    void aControlOnAFrameIsPlacedThere()
    {
        auto* frame = make->add(new QWidget(canvas.get()), u"Frame"_s, {1500, 1500, 3000, 3000});
        auto* inner = make->add(new QWidget(frame), u"Inner"_s, Place);
        make->scaling().setFactor(2);
        QCOMPARE(inner->geometry(), QRect(20, 40, 200, 80));
        QCOMPARE(frame->pos(), QPoint(200, 200));
    }

    void onAVisibleCanvasAControlIsShownAtOnce()
    {
        canvas->show();
        QVERIFY(make->button({}, {}, Place, Qt::white)->isVisible());
    }

private:
    static constexpr ui::TwipRect Place{150, 300, 1500, 600};
    static constexpr ui::look::Font Large{ui::look::Family::Arial, 20};

    std::unique_ptr<QWidget> canvas;
    std::unique_ptr<ui::ControlFactory> make;
};

QTEST_MAIN(ControlFactoryTest)
#include "control_factory_test.moc"
