#include "written/board_row.h"

#include "ui/control_factory.h"
#include "ui/squared_box.h"
#include "written/wrong_mark.h"

namespace written {

namespace {

constexpr double CrossSize = 320; // twips

void colourText(ui::SquaredBox& box, QRgb colour)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Text, QColor(colour));
    box.setPalette(palette);
}

} // namespace

BoardRow::BoardRow(ui::ControlFactory& controls, ui::SquaredBox& box, WrongMark& cross)
    : m_controls(&controls)
    , m_box(&box)
    , m_cross(&cross)
{
}

void BoardRow::empty()
{
    m_box->write({});
    colourText(*m_box, ui::look::Ink);
    m_cross->hide();
}

void BoardRow::showWrong()
{
    const ui::TwipRect place = m_controls->placeOf(m_box);
    const double inset = (place.height - CrossSize) / 2;
    m_controls->place(m_cross, {place.right() + inset, place.top + inset, CrossSize, CrossSize});
    colourText(*m_box, ui::look::Red);
    m_cross->show();
}

void BoardRow::remove()
{
    m_box->hide();
    m_box->setObjectName({}); // its name is free before it is gone
    m_box->deleteLater(); // the key that brought us here may be on its way through it
    m_cross->hide();
    m_cross->deleteLater();
}

} // namespace written
