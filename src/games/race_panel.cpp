#include "games/race_panel.h"

#include "core/defect.h"
#include "ui/control_factory.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace games {

namespace {

// Twips.
constexpr double OperationWidth = 6000;
constexpr double OperationTop = 405; // below the instruction
constexpr double OperationHeight = 840;
constexpr double AnswerLeft = 6210;
constexpr double VerdictTop = 1335;
constexpr double VerdictHeight = 540; // of the disc
constexpr double TimeLeft = 8190;
constexpr double LineHeight = 360;

constexpr ui::look::Font OperationFont{Family::CourierNew, 40, true};
constexpr ui::look::Font TimeFont{Family::Arial, 17, true};

} // namespace

RacePanel::RacePanel(ui::ControlFactory& controls, QPointF corner)
{
    makeBoxes(controls, corner);
    makeTime(controls, corner);
    makeRow(controls, corner);
}

void RacePanel::makeBoxes(ui::ControlFactory& controls, QPointF corner)
{
    const double left = corner.x();
    const double top = corner.y();
    controls.displayBox(u"Text1"_s, {left, top, OperationWidth, LineHeight},
        ui::look::Instruction, u"Instrucción"_s, u"Resuelve la operación para avanzar"_s);
    TBOperacion = controls.displayBox(u"TBOperación"_s,
        {left, top + OperationTop, OperationWidth, OperationHeight}, OperationFont,
        u"Operación"_s, u"7 x 5 + 8 ="_s);
    TBOperacion->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    TBResultado = controls.entryBox(u"TBResultado"_s,
        {left + AnswerLeft, top + OperationTop, 1740, OperationHeight}, OperationFont,
        u"Respuesta"_s);
    Text4 = controls.verdictBox(u"Text4"_s,
        {left + AnswerLeft, top + VerdictTop, 2700, VerdictHeight}, u"Comprobación"_s);
    Text4->setJudged({TBResultado});
}

void RacePanel::makeTime(ui::ControlFactory& controls, QPointF corner)
{
    m_time = controls.displayBox(u"raceTime"_s,
        {corner.x() + TimeLeft, corner.y(), 2400, LineHeight}, TimeFont, u"Tiempo"_s);
    showTime(0);
}

// No race type fills this row with an operation, so it does not show: meant.
void RacePanel::makeRow(ui::ControlFactory& controls, QPointF corner)
{
    const std::array<QString, RowBoxes> texts{u"888"_s, {}, u"888"_s, {}, u"888"_s};
    for (int i = 0; i < RowBoxes; ++i) {
        auto*& box = core::at(Text2, i);
        box = controls.entryBox(u"Text2(%1)"_s.arg(i),
            {corner.x() + 1200 * i, corner.y() + VerdictTop, 1140, 450}, ui::look::Instruction,
            u"Casilla %1"_s.arg(i + 1));
        box->setText(core::at(texts, i));
        box->hide();
    }
}

void RacePanel::showTime(int seconds)
{
    m_time->setText(u"Tiempo: %1 s"_s.arg(seconds));
}

void RacePanel::shiftOperation()
{
    const QString text = TBOperacion->text();
    TBOperacion->setText(text.startsWith(u' ') ? text.mid(1) : u' ' + text);
}

} // namespace games
