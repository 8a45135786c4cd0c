#include "written/board_signs.h"

#include "ui/control_factory.h"
#include "ui/quiet_text.h"
#include "ui/rule.h"
#include "ui/squared_box.h"
#include "written/squares.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace written {

namespace {

constexpr ui::look::Font EqualsFont{Family::CourierNew, 34, true};
constexpr ui::look::Font QuietFont{Family::CourierNew, 16};

} // namespace

BoardSigns::BoardSigns(ui::ControlFactory& controls, ui::SquaredBox& firstRow)
    : m_controls(controls)
    , m_firstRow(controls.placeOf(&firstRow))
{
    makeSigns(firstRow);
    makeRules();
}

void BoardSigns::makeSigns(ui::SquaredBox& firstRow)
{
    const double height = m_firstRow.height;
    labIgual = m_controls.label(
        u"labIgual"_s, u"="_s, {left(), m_firstRow.bottom(), Width, height}, EqualsFont);
    // Quiet: the times sign that counts is the one in front of factor 2.
    LabX = m_controls.label(u"LabX"_s, u"&X"_s, {left(), m_firstRow.top - height, Width, height},
        QuietFont, &firstRow);
    LabX->setAccessibleName(firstRow.accessibleName()); // readers call the box by its label
    new ui::QuietText(LabX);
    for (QLabel* sign : {labIgual, LabX})
        sign->setAlignment(Qt::AlignCenter);
}

void BoardSigns::makeRules()
{
    const auto make = [this](const QString& name, double top) {
        return m_controls.add(new ui::Rule(m_controls.canvas()), name,
            {left(), top, m_firstRow.right() - left(), ui::Rule::Room});
    };
    make(u"Line1"_s, m_firstRow.top);
    Line2 = make(u"Line2"_s, m_firstRow.bottom());
}

void BoardSigns::placeResult(double top)
{
    m_controls.moveTo(Line2, left(), top);
    m_controls.moveTo(labIgual, left(), top);
}

void BoardSigns::fit(const Squares& squares)
{
    for (QLabel* sign : {LabX, labIgual}) // centred, hence level with the digits
        m_controls.place(
            sign, {left(), m_controls.placeOf(sign).top, Width, 2 * squares.middle()});
    m_controls.setControlFont(labIgual, {Family::CourierNew, squares.signPixels, true});
}

} // namespace written
