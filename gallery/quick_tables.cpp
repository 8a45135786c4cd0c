#include "gallery.h"
#include "pictures.h"

#include <QRadioButton>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"Form8"_s;
const QString Start = u"Command1"_s;
const QString Answer = u"TbDatos(4)"_s;

void choose(gallery::Stage& stage, int option, const QString& limit)
{
    QTest::mouseClick(&stage.control<QRadioButton>(u"Option1(%1)"_s.arg(option)), Qt::LeftButton);
    stage.type(u"Text1"_s, limit);
}

void tick(gallery::Stage& stage, int seconds)
{
    for (int i = 0; i < seconds; ++i)
        QMetaObject::invokeMethod(
            &stage.control<QTimer>(u"Timer1"_s), "timeout", Qt::DirectConnection);
}

void answer(gallery::Stage& stage, bool right)
{
    const int product = stage.text(u"TbDatos(0)"_s).toInt() * stage.text(u"TbDatos(2)"_s).toInt();
    stage.type(Answer, QString::number(right ? product : product + 1));
    stage.press(Answer, Qt::Key_Return);
}

void addAnswers(gallery::Gallery& gallery)
{
    gallery.add(u"rapidas-empieza"_s, Form, [](gallery::Stage& stage) { stage.click(Start); });
    gallery.add(u"rapidas-bien"_s, Form, [](gallery::Stage& stage) {
        stage.click(Start);
        answer(stage, true);
        tick(stage, 2);
        stage.type(Answer, u"4"_s);
    });
    gallery.add(u"rapidas-mal"_s, Form, [](gallery::Stage& stage) {
        stage.click(Start);
        answer(stage, false);
        tick(stage, 5);
    });
    gallery.add(u"rapidas-apuro"_s, Form, [](gallery::Stage& stage) {
        stage.click(Start);
        answer(stage, true);
        tick(stage, 9);
        stage.type(Answer, u"100"_s);
    });
}

} // namespace

void gallery::addQuickTables(Gallery& gallery)
{
    gallery.add(u"rapidas-inicio"_s, Form);
    gallery.add(u"rapidas-tiempo"_s, Form, [](Stage& stage) { choose(stage, 1, u"5"_s); });
    gallery.add(u"rapidas-limite"_s, Form, [](Stage& stage) {
        choose(stage, 2, u"501"_s);
        stage.photographBox([&] { stage.click(Start); }, u"Aceptar"_s);
    });
    addAnswers(gallery);
    gallery.add(u"rapidas-informe"_s, Form, [](Stage& stage) {
        stage.click(Start);
        for (int i = 0; i < 40; ++i)
            answer(stage, i % 3 != 0);
        stage.photographBox([&] { stage.click(Start); }, u"Aceptar"_s);
    });
}
