#include "gallery.h"
#include "pictures.h"

#include "problems/problem_session_screen.h"

#include <QAbstractButton>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"FormProblemas"_s;
const QString Answer = u"TBRespuesta"_s;

void goOn(gallery::Stage& stage)
{
    for (int i = 0; i < 3; ++i)
        stage.click(u"Command2(0)"_s);
}

void choose(gallery::Stage& stage, const QString& name)
{
    stage.control<QAbstractButton>(name).click();
}

void addSelection(gallery::Gallery& gallery)
{
    gallery.add(u"problemas-seleccion"_s, u"DLGSelProb"_s);
    gallery.add(u"problemas-seleccion-todas"_s, u"DLGSelProb"_s, [](gallery::Stage& stage) {
        for (const QString& name : {u"Option1(2)"_s, u"Check1(0)"_s, u"Check1(2)"_s})
            choose(stage, name);
    });
    gallery.add(u"problemas-seleccion-ninguno"_s, u"DLGSelProb"_s, [](gallery::Stage& stage) {
        for (const QString& name :
            {u"Option1(2)"_s, u"Check1(0)"_s, u"Check1(1)"_s, u"Check1(2)"_s, u"Check1(3)"_s})
            choose(stage, name);
    });
}

} // namespace

void gallery::addProblems(Gallery& gallery)
{
    gallery.add(u"problemas"_s, Form, [](Stage& stage) { stage.type(Answer, u"1"_s); });
    gallery.add(u"problemas-mal"_s, Form, [](Stage& stage) {
        stage.click(u"Command2(0)"_s);
        stage.type(Answer, u"1"_s);
        stage.press(Answer, Qt::Key_Return);
    });
    gallery.add(u"problemas-bien"_s, Form, [](Stage& stage) {
        const QStringList solution = stage.solution(goOn, {Answer});
        goOn(stage);
        stage.type(Answer, solution.first());
        stage.press(Answer, Qt::Key_Return);
    });
    gallery.add(u"problemas-ninguno"_s, Form, [](Stage& stage) {
        dynamic_cast<problems::FormProblemas&>(stage.screen()).CargaDatos(1, 8);
        stage.photographBox([&] { stage.click(u"Command2(0)"_s); }, u"Aceptar"_s);
    });
    addSelection(gallery);
}
