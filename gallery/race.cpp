#include "gallery.h"
#include "pictures.h"

#include <QListWidget>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"FrmCarrera"_s;
const QString Answer = u"TBResultado"_s;

/// Waits for the options that come up with the race.
ui::Screen& options(gallery::Stage& stage)
{
    auto& screens = stage.screens();
    if (!QTest::qWaitFor([&] { return screens.loaded(u"DlgCarrera"_s) != nullptr; }))
        qFatal("the options did not come up");
    return *screens.loaded(u"DlgCarrera"_s);
}

void start(gallery::Stage& stage, int player, int rival, int type)
{
    ui::Screen& dialog = options(stage);
    dialog.findChild<QListWidget*>(u"List1"_s)->setCurrentRow(player);
    dialog.findChild<QListWidget*>(u"List2"_s)->setCurrentRow(rival);
    dialog.findChild<QListWidget*>(u"List3"_s)->setCurrentRow(type);
    QTest::mouseClick(dialog.findChild<QPushButton*>(u"OKButton"_s), Qt::LeftButton);
    stage.screen().activateWindow();
    [[maybe_unused]] const bool active =
        QTest::qWaitFor([&] { return QApplication::focusWidget() != nullptr; });
}

int value(const QString& operation)
{
    const QStringList parts = operation.split(u' ');
    const int a = parts.at(0).toInt();
    const int b = parts.at(2).toInt();
    const int first = parts.at(1) == u"×"_s ? a * b : a / b;
    if (parts.size() == 4)
        return first;
    const int term = parts.at(4).toInt();
    return parts.at(3) == u"+"_s ? first + term : first - term;
}

void solve(gallery::Stage& stage, int times)
{
    for (int i = 0; i < times; ++i) {
        stage.type(Answer, QString::number(value(stage.text(u"TBOperación"_s))));
        stage.press(Answer, Qt::Key_Return);
    }
}

void tick(gallery::Stage& stage, const QString& timer, int times)
{
    for (int i = 0; i < times; ++i)
        QMetaObject::invokeMethod(&stage.control<QTimer>(timer), "timeout", Qt::DirectConnection);
}

/// No timer of its own may change the picture.
void freeze(gallery::Stage& stage)
{
    for (const QString& timer : {u"Timer1"_s, u"Timer2"_s})
        stage.control<QTimer>(timer).stop();
}

void addOptions(gallery::Gallery& gallery)
{
    gallery.add(u"carrera-opciones"_s, Form, [](gallery::Stage& stage) {
        ui::Screen& dialog = options(stage);
        dialog.findChild<QListWidget*>(u"List1"_s)->setCurrentRow(2);
        dialog.findChild<QListWidget*>(u"List2"_s)->setCurrentRow(6);
        stage.photographScreen(dialog);
    });
}

void addRunning(gallery::Gallery& gallery)
{
    gallery.add(u"carrera-salida"_s, Form, [](gallery::Stage& stage) { start(stage, 0, 9, 0); });
    gallery.add(u"carrera-en-marcha"_s, Form, [](gallery::Stage& stage) {
        start(stage, 8, 5, 2);
        solve(stage, 1);
        freeze(stage);
        solve(stage, 4);
        freeze(stage);
        tick(stage, u"Timer2"_s, 14);
        tick(stage, u"Timer1"_s, 7);
        stage.type(Answer, u"4"_s);
        freeze(stage);
    });
    gallery.add(u"carrera-teclado"_s, Form, [](gallery::Stage& stage) {
        start(stage, 4, 6, 3);
        stage.click(u"CBConmutar"_s);
        solve(stage, 1);
        stage.type(Answer, u"99"_s);
        stage.press(Answer, Qt::Key_Return);
        freeze(stage);
    });
}

void addEnds(gallery::Gallery& gallery)
{
    gallery.add(u"carrera-meta"_s, Form, [](gallery::Stage& stage) {
        start(stage, 7, 3, 1);
        solve(stage, 14);
        tick(stage, u"Timer2"_s, 52);
        tick(stage, u"Timer1"_s, 23);
        stage.photographBox([&] { solve(stage, 1); }, u"Aceptar"_s);
        stage.picture = {};
        freeze(stage);
    });
    gallery.add(u"carrera-ganada"_s, Form, [](gallery::Stage& stage) {
        start(stage, 7, 3, 1);
        solve(stage, 14);
        tick(stage, u"Timer1"_s, 23);
        stage.photographBox([&] { solve(stage, 1); }, u"Aceptar"_s);
    });
    gallery.add(u"carrera-podio"_s, Form, [](gallery::Stage& stage) {
        start(stage, 7, 3, 1);
        solve(stage, 14);
        stage.photographBehindBox([&] { solve(stage, 1); }, u"Aceptar"_s);
    });
    gallery.add(u"carrera-perdida"_s, Form, [](gallery::Stage& stage) {
        start(stage, 1, 0, 0);
        solve(stage, 9);
        tick(stage, u"Timer2"_s, 59);
        tick(stage, u"Timer1"_s, 26);
        stage.photographBox([&] { tick(stage, u"Timer2"_s, 1); }, u"Aceptar"_s);
    });
}

} // namespace

void gallery::addRace(Gallery& gallery)
{
    addOptions(gallery);
    addRunning(gallery);
    addEnds(gallery);
}
