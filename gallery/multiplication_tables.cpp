#include "gallery.h"
#include "pictures.h"

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"Form2"_s;
const QString Answer = u"TbOperación(4)"_s;

void addReviews(gallery::Gallery& gallery)
{
    gallery.add(u"tablas-repaso"_s, Form, [](gallery::Stage& stage) {
        stage.pick(u"MnuOpcTabLis(7)"_s);
        stage.pick(u"MnuOpcActLis(1)"_s);
    });
    gallery.add(u"tablas-repaso-mal"_s, Form, [](gallery::Stage& stage) {
        stage.pick(u"MnuOpcActLis(2)"_s);
        stage.type(Answer, u"99"_s);
        stage.press(Answer, Qt::Key_Return);
    });
    gallery.add(u"tablas-repaso-bien"_s, Form, [](gallery::Stage& stage) {
        stage.pick(u"MnuOpcTabLis(3)"_s);
        stage.pick(u"MnuOpcActLis(1)"_s);
        stage.type(Answer, u"10"_s);
        stage.press(Answer, Qt::Key_Return);
        stage.type(Answer, u"2"_s);
    });
    gallery.add(u"tablas-repaso-bien-ventana-ancha"_s, Form, [](gallery::Stage& stage) {
        stage.widen();
        stage.pick(u"MnuOpcTabLis(3)"_s);
        stage.pick(u"MnuOpcActLis(1)"_s);
        stage.type(Answer, u"10"_s);
        stage.press(Answer, Qt::Key_Return);
    });
    gallery.add(u"tablas-fin"_s, Form, [](gallery::Stage& stage) {
        stage.pick(u"MnuOpcActLis(1)"_s);
        for (int k = 1; k < 10; ++k) {
            stage.type(Answer, QString::number(k));
            stage.press(Answer, Qt::Key_Return);
        }
        stage.type(Answer, u"10"_s);
        stage.photographBox([&] { stage.press(Answer, Qt::Key_Return); }, u"Sí"_s);
    });
}

} // namespace

void gallery::addMultiplicationTables(Gallery& gallery)
{
    gallery.add(u"tablas-ver"_s, Form, [](Stage& stage) { stage.pick(u"MnuOpcTabLis(7)"_s); });
    gallery.add(u"tablas-ver-10"_s, Form, [](Stage& stage) { stage.pick(u"MnuOpcTabLis(3)"_s); });
    addReviews(gallery);
}
