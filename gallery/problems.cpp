#include "gallery.h"
#include "pictures.h"

#include "problems/problem_session_screen.h"

#include <QAbstractButton>
#include <QTextEdit>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"FormProblemas"_s;
const QString Answer = u"TBRespuesta"_s;

void goOn(gallery::Stage& stage)
{
    for (int i = 0; i < 3; ++i)
        stage.click(u"Command2(0)"_s);
}

/// Goes on to the longest of many statements.
void findLongest(gallery::Stage& stage)
{
    constexpr int Tries = 200;
    const auto& statement = stage.control<QTextEdit>(u"TBEnunciado"_s);
    const auto length = [&] { return statement.toPlainText().size(); };
    qsizetype longest = length();
    const auto goOnTo = [&](const auto& isReached) {
        for (int i = 0; i < Tries && !isReached(); ++i)
            stage.click(u"Command2(0)"_s);
    };
    goOnTo([&] {
        longest = std::max(longest, length());
        return false;
    });
    goOnTo([&] { return length() == longest; });
}

/// The selection, opened over a problem, with these options chosen.
void photographSelection(gallery::Stage& stage, const QStringList& chosen)
{
    stage.pick(u"MnuOpcSel"_s);
    ui::Screen& dialog = *stage.screens().loaded(u"DLGSelProb"_s);
    for (const QString& name : chosen) {
        auto* option = dialog.findChild<QAbstractButton*>(name);
        const int sign = option->height() / 2; // in the middle of its square or circle
        QTest::mouseClick(option, Qt::LeftButton, {}, {sign, sign});
    }
    stage.photographScreen(dialog);
}

void addSelection(gallery::Gallery& gallery)
{
    const auto add = [&](const QString& name, const QStringList& chosen) {
        gallery.add(
            name, Form, [=](gallery::Stage& stage) { photographSelection(stage, chosen); });
    };
    const QString all = u"Option1(2)"_s;
    add(u"problemas-seleccion"_s, {});
    add(u"problemas-seleccion-todas"_s, {all, u"Check1(0)"_s, u"Check1(2)"_s});
    add(u"problemas-seleccion-ninguno"_s,
        {all, u"Check1(0)"_s, u"Check1(1)"_s, u"Check1(2)"_s, u"Check1(3)"_s});
}

} // namespace

void gallery::addProblems(Gallery& gallery)
{
    gallery.add(u"problemas"_s, Form, [](Stage& stage) { stage.type(Answer, u"1"_s); });
    gallery.add(u"problemas-largo"_s, Form, findLongest);
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
