#include "gallery.h"
#include "pictures.h"

#include <QCheckBox>
#include <QListWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"DLGProblemas"_s;

void choose(gallery::Stage& stage, int row)
{
    auto& list = stage.control<QListWidget>(u"List1"_s);
    list.scrollToItem(list.item(row));
    const QRect place = list.visualItemRect(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
}

} // namespace

void gallery::addProblemsEditor(Gallery& gallery)
{
    gallery.add(u"editor-nuevo"_s, Form);
    gallery.add(u"editor-problema"_s, Form, [](Stage& stage) {
        choose(stage, 3);
        stage.press(u"List1"_s, Qt::Key_Tab);
    });
    gallery.add(u"editor-probar"_s, Form, [](Stage& stage) {
        choose(stage, 3);
        stage.photographBox([&] { stage.click(u"CBProbar"_s); }, u"Aceptar"_s);
    });
    gallery.add(u"editor-avisos"_s, Form, [](Stage& stage) {
        stage.type(u"Text1"_s, u"Reparto [20_60] cromos entre [3_9] amigos y sobran [2_5"_s);
        stage.type(u"Text2"_s, u"{&1/&2-&3}"_s);
        stage.photographBox([&] { stage.click(u"CBProbar"_s); }, u"Aceptar"_s);
    });
    gallery.add(u"editor-insertar"_s, Form, [](Stage& stage) {
        choose(stage, 3);
        stage.photographBox([&] { stage.click(u"Command2"_s); }, u"Cancelar"_s);
    });
    gallery.add(u"editor-error"_s, Form, [](Stage& stage) {
        stage.type(u"Text2"_s, u"{&1*(2+}"_s);
        stage.photographBox([&] { stage.click(u"CBProbar"_s); }, u"Aceptar"_s);
    });
}
