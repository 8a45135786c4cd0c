#include "gallery.h"
#include "pictures.h"

#include "written/digit_dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;
using gallery::Stage;

namespace {

const QString Form = u"Form3"_s;

void typeFactor(const Stage& stage, const QString& menuItem, const QString& digits)
{
    QTimer typist;
    QObject::connect(&typist, &QTimer::timeout, &typist, [&] {
        if (auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget())) {
            typist.stop();
            box->setTextValue(digits);
            box->accept();
        }
    });
    typist.start(20);
    stage.pick(menuItem);
}

/// The exercise factor 1 × factor 2 on an empty board.
void show(const Stage& stage, const QString& factor1, const QString& factor2)
{
    typeFactor(stage, u"MnuOpcIn1"_s, factor1);
    typeFactor(stage, u"MnuOpcIn2"_s, factor2);
    stage.screen().activateWindow();
    stage.control<QLineEdit>(u"TbParcial(0)"_s).setFocus();
}

/// As a pupil does: the units first.
void typeFromUnits(const Stage& stage, const QString& box, QString number)
{
    stage.control<QLineEdit>(box).setFocus();
    std::reverse(number.begin(), number.end());
    stage.type(box, number);
}

void addBoards(gallery::Gallery& gallery)
{
    gallery.add(u"multiplicacion-vacia"_s, Form);
    gallery.add(u"multiplicacion-1-cifra"_s, Form, [](Stage& stage) {
        show(stage, u"478"_s, u"6"_s);
        typeFromUnits(stage, u"TbParcial(0)"_s, u"868"_s);
    });
    gallery.add(u"multiplicacion-a-medias"_s, Form, [](Stage& stage) {
        show(stage, u"4738"_s, u"56"_s);
        typeFromUnits(stage, u"TbParcial(0)"_s, u"28428"_s);
        typeFromUnits(stage, u"TbParcial(1)"_s, u"690 "_s);
        stage.press(u"TbParcial(1)"_s, Qt::Key_Shift);
    });
    gallery.add(u"multiplicacion-4-cifras"_s, Form, [](Stage& stage) {
        show(stage, u"9786"_s, u"5067"_s);
        stage.click(u"Command2(2)"_s);
    });
    gallery.add(u"multiplicacion-10-cifras"_s, Form, [](Stage& stage) {
        show(stage, u"9876543219"_s, u"9876504321"_s);
        stage.click(u"Command2(2)"_s);
    });
    gallery.add(u"multiplicacion-sin-ceros"_s, Form, [](Stage& stage) {
        stage.pick(u"MnuOpcOcu"_s);
        show(stage, u"1234"_s, u"205"_s);
        stage.click(u"Command2(2)"_s);
    });
}

void addVerdicts(gallery::Gallery& gallery)
{
    gallery.add(u"multiplicacion-mal"_s, Form, [](Stage& stage) {
        show(stage, u"4738"_s, u"56"_s);
        typeFromUnits(stage, u"TbParcial(0)"_s, u"28428"_s);
        typeFromUnits(stage, u"TbParcial(1)"_s, u"23590 "_s);
        typeFromUnits(stage, u"TBResultado"_s, u"264328"_s);
        stage.press(u"TBResultado"_s, Qt::Key_Return);
    });
    gallery.add(u"multiplicacion-bien"_s, Form, [](Stage& stage) {
        show(stage, u"4738"_s, u"56"_s);
        typeFromUnits(stage, u"TbParcial(0)"_s, u"28428"_s);
        typeFromUnits(stage, u"TbParcial(1)"_s, u"23690 "_s);
        typeFromUnits(stage, u"TBResultado"_s, u"265328"_s);
        stage.press(u"TBResultado"_s, Qt::Key_Return);
    });
}

} // namespace

void gallery::addLongMultiplication(Gallery& gallery)
{
    addBoards(gallery);
    addVerdicts(gallery);
    gallery.add(u"multiplicacion-tablas-a-usar"_s, Form, [](Stage& stage) {
        stage.pick(u"MnuOpcSelLis(1)"_s);
        ui::Screen& dialog = *stage.screens().loaded(written::Dialog::screenName());
        for (const int digit : {2, 3, 5, 7})
            dialog.findChild<QAbstractButton*>(u"Check1(%1)"_s.arg(digit - 1))->click();
        stage.photographScreen(dialog);
    });
}
