#include "games/race.h"
#include "games/rain_box.h"
#include "problems/bank_editor.h"
#include "support/display.h"
#include "support/program_bench.h"
#include "support/screen_bench.h"
#include "tables/quick_tables.h"
#include "ui/opening_factor.h"
#include "ui/scaling.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using games::RainBox;
using tables::QuickTables;

namespace {

enum class Kind { Message, Question, Input };

/// A box that some screen opens, with the widest text that it can have there.
struct Box {
    const char* name;
    QString owner;
    QString text;
    QString title = ui::MessageBox::programTitle();
    Kind kind = Kind::Message;
    ui::Icon icon = ui::Icon::None;
    QString notes = {};
};

constexpr int Widest = -30000; // as wide as a number of 16 bits gets

const QString Folder = u"C:\\Users\\profesorado\\Documentos compartidos\\Tercer curso\\"_s
                       "Matemáticas\\PizarrinParaElAula\\Recursos"_s;

QString quickReport()
{
    QStringList lines{u"Número de operaciones: 30000. Número total de errores: 30000."_s,
        u"Errores cometidos al usar cada número y porcentaje: "_s};
    for (int number = 1; number <= 10; ++number)
        lines << u"número %1: 30000 errores. (33,3333333333333 %)"_s.arg(number);
    lines << u"Errores por tiempo: 30000."_s;
    return lines.join(u"\r\n"_s);
}

std::vector<Box> boxesOfTables()
{
    core::SeededRandom random;
    const QString tooLarge = *QuickTables(random).limitFault(QString(60, u'9'));
    return {
        {"about", u"Form1"_s,
            u"Pizarrin: multiplicar y dividir en primaria.\r\n"
            "Se puede usar, copiar y cambiar (licencia MIT)."_s},
        {"series", u"Form2"_s,
            u"Has cometido 30000 errores. ¿Deseas volver a realizar esta actividad?"_s,
            u"Repaso terminado"_s, Kind::Question},
        {"activity ended", u"Form4"_s,
            u"La actividad está terminada. Si deseas repetirla pulsa en sí, en caso contrario "
            "pulsa No y entra en el menú opciones para elegir una actividad nueva"_s,
            u"Actividad terminada"_s, Kind::Question},
        {"quick report", u"Form8"_s, quickReport()},
        {"limit", u"Form8"_s, QuickTables::limitWarning(QuickTables::LimitVerdict::TooSmall),
            ui::MessageBox::programTitle(), Kind::Message, ui::Icon::Exclamation},
        {"long limit", u"Form8"_s, tooLarge, ui::MessageBox::programTitle(), Kind::Message,
            ui::Icon::Exclamation},
    };
}

std::vector<Box> boxesOfWrittenWork()
{
    return {
        {"divisors", u"FrmMultidivi"_s, u"Los datos introducidos no son válidos"_s, u"error"_s},
        {"factor", u"Form3"_s, u"Introduzca el segundo factor de la multiplicación:"_s,
            u"Multiplicaciones"_s, Kind::Input},
        {"large factor", u"Form3"_s, u"El valor introducido es demasiado grande."_s,
            u"Multiplicaciones"_s},
        {"rows", u"Form3"_s, u"desajuste"_s},
        {"dividend", u"Form6"_s, {}, u"Introducir dividendo"_s, Kind::Input},
        {"decimals", u"Form6"_s, u"Debe sacar al menos 6 decimales."_s, u"Atención"_s,
            Kind::Message, ui::Icon::Information},
    };
}

std::vector<Box> boxesOfProblems()
{
    return {
        {"bank", u"FormProblemas"_s,
            u"No se puede leer «%1».\nCompruebe que es un archivo y que tiene permiso para leerlo."_s
                .arg(Folder)},
        {"least value", u"DLGProblemas"_s, u"valor mínimo posible: "_s,
            u"Insertar dato variable"_s, Kind::Input},
        {"expression", u"DLGProblemas"_s,
            u"Escriba la expresión a insertar. Utilice &1 para insertar el primer dato, &2 para "
            u"el "
            "segundo  y así sucesivamente hasta &9. No deje espacios tras el signo &."_s,
            u"Reinsertar dato variable"_s, Kind::Input},
        {"ampersand", u"DLGProblemas"_s,
            u"Error en la expresión, no debe dejar espacios en blanco tras el signo &"_s,
            u"Error"_s, Kind::Message, ui::Icon::Critical},
        {"separator", u"DLGProblemas"_s, problems::separatorRefusal()},
        {"try-out", u"DLGProblemas"_s, u"Reparte 30 peras en 5 cestas. "_s.repeated(12),
            ui::MessageBox::programTitle(), Kind::Message, ui::Icon::None,
            u"{&1/&2} da 33,3333333333333 y se redondea a 33. &1 = 30, &2 = 5. "_s.repeated(3)},
    };
}

std::vector<Box> boxesOfGames()
{
    games::RainState state;
    state.Puntos = Widest;
    state.PuntosTotales = Widest;
    const RainBox passed = RainBox::phasePassed(Widest, state);
    const RainBox lost = RainBox::lifeLost(false);
    const RainBox over = RainBox::gameOver(state);
    return {
        {"phase", u"Form5"_s, passed.text, passed.title},
        {"life", u"Form5"_s, lost.text, lost.title},
        {"game over", u"Form5"_s, over.text, over.title, Kind::Question},
        {"race lost", u"FrmCarrera"_s,
            u"tu adversario ha ganado la carrera. Ha tardado 30000 segundos."_s,
            u"La gran carrera"_s},
        {"race over", u"FrmCarrera"_s, games::Race::overText()},
        {"picture", u"DlgCarrera"_s,
            u"No se puede mostrar la imagen «%1»: el archivo está dañado. Hay que copiar de "
            u"nuevo "
            "el archivo en la carpeta «%2»."_s.arg(u"07 _ Skoda octavia amarillo.jpg"_s, Folder)},
    };
}

std::vector<Box> boxes()
{
    std::vector<Box> all;
    for (auto* part : {boxesOfTables, boxesOfWrittenWork, boxesOfProblems, boxesOfGames})
        std::ranges::move(part(), std::back_inserter(all));
    return all;
}

} // namespace

/// Every box of the program over its screen, on a display of a given size: at the factor at which
/// the screen opens, and at the largest that a screen can have.
class BoxWidthsTest : public QObject {
    Q_OBJECT

private slots:
    void everyBoxLeavesThePupilsWorkInSight_data()
    {
        QTest::addColumn<Box>("box");
        for (const Box& box : boxes())
            QTest::addRow("%s", box.name) << box;
    }
    void everyBoxLeavesThePupilsWorkInSight()
    {
        QFETCH(Box, box);
        ProgramBench program;
        program.screens.show(box.owner);
        ui::Screen& owner = *program.screens.loaded(box.owner);
        for (const double factor : {owner.factor(), LargestFactor}) {
            ui::setWindowFactor(owner, factor);
            BoxAnswerer answerer(box.kind == Kind::Question ? u"Sí"_s : u"Aceptar"_s);
            answerer.whileOpen = [&owner](const QDialog& open) {
                const int room = owner.screen()->availableGeometry().width();
                QVERIFY2(open.width() <= 0.7 * room,
                    qPrintable(u"%1 of %2 pixels"_s.arg(open.width()).arg(room)));
                verifyLarge(open, ui::overlayFactorOf(owner));
                verifyWhole(open);
            };
            show(box, owner);
        }
    }

private:
    static constexpr double LargestFactor = 40;

    static void show(const Box& box, ui::Screen& owner)
    {
        switch (box.kind) {
        case Kind::Message:
            ui::MessageBox::show(owner, box.text, box.title, box.icon, box.notes);
            break;
        case Kind::Question:
            ui::MessageBox::ask(owner, box.text, box.title);
            break;
        case Kind::Input:
            ui::InputBox::ask(owner, box.text, box.title);
            break;
        }
    }

    static void verifyLarge(const QDialog& box, double factor)
    {
        for (const QPushButton* button : box.findChildren<QPushButton*>()) {
            QCOMPARE(button->height(), qRound(44 * factor));
            QCOMPARE(button->font().pixelSize(), static_cast<int>(18 * factor));
        }
        for (const QLineEdit* edit : box.findChildren<QLineEdit*>())
            QCOMPARE(edit->font().pixelSize(), static_cast<int>(18 * factor));
    }

    /// Nothing stands out of the box, and no text out of its label.
    static void verifyWhole(const QDialog& box)
    {
        for (const QWidget* part : box.findChildren<QWidget*>()) {
            const QRect place(part->mapTo(&box, QPoint()), part->size());
            QVERIFY2(!part->isVisible() || box.rect().contains(place),
                part->metaObject()->className());
        }
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            if (label->text().isEmpty()) // the place of an icon
                continue;
            const QRect room = label->contentsRect();
            const QRect text = label->fontMetrics().boundingRect(
                room, Qt::TextWordWrap | static_cast<int>(label->alignment()), label->text());
            QVERIFY2(text.width() <= room.width() && text.height() <= room.height(),
                qPrintable(label->text()));
        }
    }
};

DISPLAY_TEST_MAIN(BoxWidthsTest)
#include "box_widths_test.moc"
