#include "tables/tables_board.h"

#include "tables/poster.h"
#include "ui/control_factory.h"
#include "ui/marker_stripe.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace tables {

namespace {

// Twips. What is hidden goes so far to the right: no control that ever is may stand further left
// than that leaves it out of the canvas, its tray included.
constexpr double BoxShift = 5500;
constexpr double CommandShift = 6000;
constexpr double HiddenFrom = 5900;

constexpr ui::look::Font TableFont{Family::CourierNew, 22, true};
constexpr ui::look::Font QuestionFont{Family::CourierNew, 26, true};

} // namespace

TablesBoard::TablesBoard(ui::ControlFactory& controls)
    : m_controls(controls)
{
    makeTables();
    makeQuestion();
    makeVerdict();
}

void TablesBoard::makeTables()
{
    constexpr ui::TwipRect Rows{900, 640, 4600, 3100};
    constexpr double Half = Rows.width / 2;
    QWidget* canvas = m_controls.canvas();
    m_poster = m_controls.add(new Poster(canvas), {}, Poster::around(Rows));
    TbTabla1 = m_controls.add(new PosterHalf(PosterHalf::Side::Left, canvas), u"TbTabla1"_s,
        ui::TwipRect{Rows.left, Rows.top, Half, Rows.height}, TableFont);
    TbTabla1->setAccessibleName(u"Primera mitad de la tabla"_s);
    TbTabla2 = m_controls.add(new PosterHalf(PosterHalf::Side::Right, canvas), u"TbTabla2"_s,
        ui::TwipRect{Rows.left + Half, Rows.top, Half, Rows.height}, TableFont);
    TbTabla2->setAccessibleName(u"Segunda mitad de la tabla"_s);
}

void TablesBoard::makeQuestion()
{
    constexpr double Top = 700;
    constexpr double BoxHeight = 500;
    const auto display = [this](int index, double left, double width, const QString& name,
                             const QString& text = {}) {
        return m_controls.displayBox(u"TbOperación(%1)"_s.arg(index),
            {left, Top, width, BoxHeight}, QuestionFont, name, text);
    };
    TbOperacion = {display(0, 1150, 1000, u"Tabla"_s), display(1, 2175, 500, u"Por"_s, u"×"_s),
        display(2, 2700, 1000, u"Multiplicador"_s), display(3, 3725, 500, u"Igual a"_s, u"="_s),
        m_controls.entryBox(
            u"TbOperación(4)"_s, {4250, Top, 1000, BoxHeight}, QuestionFont, u"Respuesta"_s)};
    for (ui::TextBox* box : TbOperacion)
        box->setAlignment(Qt::AlignCenter);
    new ui::MarkerStripe({TbOperacion[0], TbOperacion[1], TbOperacion[2], TbOperacion[3]},
        ui::MarkerStripe::Kind::Marker);
}

void TablesBoard::makeVerdict()
{
    Text1 = m_controls.verdictBox(u"Text1"_s, {1150, 1500, 4650, 500}, u"Comprobación"_s);
    Text1->setJudged({answer()});
    new ui::MarkerStripe({Text1}, ui::MarkerStripe::Kind::Marker);
}

void TablesBoard::showQuestions(bool shown, const std::vector<QWidget*>& commands)
{
    m_poster->setVisible(!shown);
    for (QWidget* table : {TbTabla1, TbTabla2})
        show(table, !shown, BoxShift);
    for (QWidget* box : TbOperacion)
        show(box, shown, BoxShift);
    for (QWidget* command : commands)
        show(command, shown, CommandShift);
    show(Text1, shown, CommandShift);
}

void TablesBoard::show(QWidget* control, bool shown, double shift)
{
    const ui::TwipRect place = m_controls.placeOf(control);
    const bool isShown = place.left < HiddenFrom;
    if (shown != isShown)
        m_controls.moveTo(control, place.left + (shown ? -shift : shift), place.top);
    control->setEnabled(shown);
}

void TablesBoard::writeTable(const QString& firstHalf, const QString& secondHalf)
{
    TbTabla1->setPlainText(firstHalf);
    TbTabla2->setPlainText(secondHalf);
}

void TablesBoard::writeQuestion(int table, int multiplier)
{
    TbOperacion[0]->setText(QString::number(table));
    TbOperacion[2]->setText(QString::number(multiplier));
    answer()->clear();
    answer()->setEdge({}); // a verdict that still stands is about the last question
    answer()->setFocus();
    selectOperation();
}

void TablesBoard::selectOperation()
{
    for (std::size_t i = 0; i < 4; ++i)
        TbOperacion.at(i)->showSelected();
}

void TablesBoard::deselectOperation()
{
    for (std::size_t i = 0; i < 4; ++i)
        TbOperacion.at(i)->deselect();
}

} // namespace tables
