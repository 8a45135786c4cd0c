#include "gallery.h"
#include "pictures.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"Form6"_s;
const QString Work = u"Text1"_s;
const QString Quotient = u"Text3"_s;
const QString Solution = u"Command2(2)"_s;

/// Goes to a cell below the dividend and writes from there to the right.
void write(gallery::Stage& stage, int row, int column, const QString& keys)
{
    auto& area = stage.control<QWidget>(Work);
    area.setFocus();
    QTest::keyClick(&area, Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < row; ++i)
        stage.press(Work, Qt::Key_Down);
    for (int i = 0; i < column; ++i)
        stage.press(Work, Qt::Key_Right);
    for (const QChar key : keys) {
        stage.type(Work, key);
        stage.press(Work, Qt::Key_Right);
    }
}

void typeOperand(gallery::Stage& stage, const QString& item, const QString& operand)
{
    stage.photographBox([&] { stage.pick(item); }, u"Aceptar"_s, operand);
    stage.picture = {};
    stage.screen().activateWindow();
    [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&stage.screen());
}

void showDivision(
    gallery::Stage& stage, const QString& dividend, const QString& divisor, int decimals = 0)
{
    stage.pick(u"MnuOpcDecLis(%1)"_s.arg(decimals));
    typeOperand(stage, u"MnuOpcInt"_s, dividend);
    typeOperand(stage, u"MnuOpcInd"_s, divisor);
}

void answer(gallery::Stage& stage, const QString& quotient)
{
    stage.control<QWidget>(Quotient).setFocus();
    stage.type(Quotient, quotient);
    stage.press(Quotient, Qt::Key_Return);
}

void solve(gallery::Gallery& gallery, const QString& name, const QString& dividend,
    const QString& divisor, int decimals, bool products)
{
    gallery.add(name, Form, [=](gallery::Stage& stage) {
        if (products)
            stage.pick(u"MnuOpcRes"_s);
        showDivision(stage, dividend, divisor, decimals);
        stage.click(Solution);
    });
}

void addSolutions(gallery::Gallery& gallery)
{
    solve(gallery, u"division-solucion"_s, u"7391"_s, u"24"_s, 0, false);
    solve(gallery, u"division-solucion-restas"_s, u"7391"_s, u"24"_s, 0, true);
    solve(gallery, u"division-solucion-2-decimales"_s, u"123456"_s, u"789"_s, 2, false);
    solve(gallery, u"division-solucion-5-decimales"_s, u"987654"_s, u"7"_s, 5, true);
    solve(gallery, u"division-solucion-menor"_s, u"5"_s, u"12"_s, 2, true);
    solve(gallery, u"division-solucion-mayor"_s, u"-2147483648"_s, u"-21474"_s, 5, false);
}

void addExercises(gallery::Gallery& gallery)
{
    gallery.add(u"division-a-medias"_s, Form, [](gallery::Stage& stage) {
        showDivision(stage, u"7391"_s, u"24"_s);
        write(stage, 1, 2, u"191"_s);
        write(stage, 2, 3, u"2"_s);
    });
    gallery.add(u"division-seleccion"_s, Form, [](gallery::Stage& stage) {
        showDivision(stage, u"7391"_s, u"24"_s);
        write(stage, 1, 2, u"191"_s);
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&stage.control<QWidget>(Work), Qt::Key_Left, Qt::ShiftModifier);
    });
    gallery.add(u"division-mal"_s, Form, [](gallery::Stage& stage) {
        showDivision(stage, u"25"_s, u"2"_s, 3);
        write(stage, 1, 1, u"05"_s);
        answer(stage, u"10,500"_s);
    });
    gallery.add(u"division-bien"_s, Form, [](gallery::Stage& stage) {
        showDivision(stage, u"7391"_s, u"24"_s);
        write(stage, 1, 2, u"191"_s);
        write(stage, 2, 3, u"23"_s);
        answer(stage, u"307"_s);
    });
}

void addBoxes(gallery::Gallery& gallery)
{
    gallery.add(u"division-faltan-decimales"_s, Form, [](gallery::Stage& stage) {
        showDivision(stage, u"25"_s, u"2"_s, 3);
        stage.photographBox([&] { answer(stage, u"12,5"_s); }, u"Aceptar"_s);
    });
    gallery.add(u"division-introducir"_s, Form, [](gallery::Stage& stage) {
        stage.photographBox([&] { stage.pick(u"MnuOpcInt"_s); }, u"Cancelar"_s, u"7391"_s);
    });
}

} // namespace

void gallery::addLongDivision(Gallery& gallery)
{
    gallery.add(u"division"_s, Form);
    addExercises(gallery);
    addBoxes(gallery);
    gallery.add(u"division-larga"_s, Form, [](Stage& stage) {
        showDivision(stage, u"00000000000000000000000007391"_s, u"24"_s, 5);
    });
    addSolutions(gallery);
}
