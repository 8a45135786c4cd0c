#include "gallery.h"
#include "pictures.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"Form4"_s;

/// Goes on until a sum of this many lines with an addend of this many digits is shown.
void findSum(gallery::Stage& stage, qsizetype lines, qsizetype digits)
{
    const auto& box = stage.control<QPlainTextEdit>(u"TbSuma"_s);
    for (;;) {
        const QString sum = box.toPlainText();
        if (sum.trimmed().count(u'\n') + 1 == lines && sum.section(u' ', 0, 0).size() == digits)
            return;
        stage.click(u"Command2(0)"_s);
    }
}

} // namespace

void gallery::addRepeatedSum(Gallery& gallery)
{
    gallery.add(u"suma-corta"_s, Form, [](Stage& stage) { findSum(stage, 1, 1); });
    gallery.add(u"suma-ventana-ancha"_s, Form, [](Stage& stage) { stage.widen(); });
    gallery.add(u"suma-larga"_s, Form, [](Stage& stage) {
        findSum(stage, 2, 2);
        stage.type(u"Text3(0)"_s, u"10"_s);
    });
    gallery.add(u"suma-mal"_s, Form, [](Stage& stage) {
        stage.type(u"Text3(0)"_s, u"10"_s);
        stage.type(u"Text3(2)"_s, u"11"_s);
        stage.press(u"Text3(2)"_s, Qt::Key_Return);
    });
    gallery.add(u"suma-bien"_s, Form, [](Stage& stage) {
        const QStringList terms =
            stage.control<QPlainTextEdit>(u"TbSuma"_s).toPlainText().simplified().split(u" + "_s);
        stage.type(u"Text3(0)"_s, terms.first());
        stage.type(u"Text3(2)"_s, QString::number(terms.size()));
        stage.press(u"Text3(2)"_s, Qt::Key_Return);
    });
    gallery.add(u"suma-solucion"_s, Form, [](Stage& stage) { stage.click(u"Command2(2)"_s); });
}
