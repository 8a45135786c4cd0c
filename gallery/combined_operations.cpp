#include "gallery.h"
#include "pictures.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"FRMCombi"_s;
const QString Answer = u"TBResultado"_s;
const QString Scratch = u"TBCálculos"_s;

/// Works on two further lines of the scratch area.
void work(gallery::Stage& stage)
{
    stage.control<QPlainTextEdit>(Scratch).setFocus();
    for (const QString& line : {u"= 8 + 8 - 6"_s, u"= 16 - 6"_s}) {
        stage.press(Scratch, Qt::Key_Return);
        stage.type(Scratch, line);
    }
}

} // namespace

void gallery::addCombinedOperations(Gallery& gallery)
{
    gallery.add(u"combinadas"_s, Form);
    gallery.add(u"combinadas-calculos"_s, Form, work);
    gallery.add(u"combinadas-mal"_s, Form, [](Stage& stage) {
        work(stage);
        stage.type(Answer, u"999"_s);
        stage.press(Answer, Qt::Key_Return);
    });
    gallery.add(u"combinadas-bien"_s, Form, [](Stage& stage) {
        stage.type(Answer, stage.solution([](Stage&) {}, {Answer}).first());
        stage.press(Answer, Qt::Key_Return);
    });
    gallery.add(u"combinadas-continuar"_s, Form, [](Stage& stage) {
        stage.click(u"Command2(2)"_s);
        stage.click(u"Command1"_s);
        stage.click(u"Command2(0)"_s);
    });
}
