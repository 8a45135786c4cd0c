#include "gallery.h"
#include "pictures.h"

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"FrmMultHuecos"_s;
const QString Gap = u"TbTermin(1)"_s;

void answer(gallery::Stage& stage, const QString& keys)
{
    stage.type(Gap, keys);
    stage.press(Gap, Qt::Key_Return);
}

} // namespace

void gallery::addFillTheGap(Gallery& gallery)
{
    gallery.add(u"hueco"_s, Form);
    gallery.add(u"hueco-mal"_s, Form, [](Stage& stage) { answer(stage, u"1"_s); });
    gallery.add(u"hueco-mal-otra-vez"_s, Form, [](Stage& stage) {
        answer(stage, u"1"_s);
        answer(stage, u"1"_s);
    });
    gallery.add(u"hueco-mal-ventana-ancha"_s, Form, [](Stage& stage) {
        stage.widen();
        answer(stage, u"1"_s);
    });
    gallery.add(u"hueco-bien"_s, Form,
        [](Stage& stage) { answer(stage, stage.solution([](Stage&) {}, {Gap}).first()); });
    gallery.add(u"hueco-el-mayor"_s, Form, [](Stage& stage) {
        while (stage.text(u"TbTermin(2)"_s) != u"100")
            stage.click(u"Command2(0)"_s);
        stage.type(Gap, u"10"_s);
    });
}
