#include "problems/selection_screen.h"

#include "core/defect.h"
#include "problems/bank.h"
#include "ui/radio_group.h"
#include "ui/screens.h"
#include "ui/tray.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

// Twips.
constexpr double Width = 8280;
constexpr double Margin = 240;
constexpr double Gap = 240;
constexpr double FrameTop = 150;
constexpr double FrameHeight = 2700;
constexpr double OptionsWidth = 4680;
constexpr double ChecksLeft = Margin + OptionsWidth + Gap;
constexpr double ChecksWidth = Width - Margin - ChecksLeft;
constexpr double FirstRow = 540; // in a frame
constexpr double Indent = 180; // likewise
constexpr double RowHeight = 510;
constexpr double CountTop = FrameTop + FrameHeight + 90;
constexpr double CountHeight = 480;
constexpr double CommandWidth = 1920;
constexpr double CommandHeight = 600;
constexpr double CommandGap = 120;
constexpr double StripMargin = 180; // around the buttons
constexpr double CommandTop = CountTop + CountHeight + 90 + StripMargin;
constexpr double Height = CommandTop + CommandHeight + StripMargin;

} // namespace

DLGSelProb::DLGSelProb(ui::Screens& screens)
    : Screen(screens, screenName(), u"Selección de problemas"_s, Width, Height)
{
    makeOptions();
    makeChecks();
    Text1 = displayBox(u"Text1"_s, {Margin, CountTop, Width - 2 * Margin, CountHeight},
        ui::look::Verdict, u"Enunciados disponibles"_s, u"0 tipos seleccionados"_s);
    makeWaysOut();
}

void DLGSelProb::makeWaysOut()
{
    const QColor neutral = ui::look::palette().color(QPalette::Button);
    const ui::TwipRect right{
        Width - Margin - CommandWidth, CommandTop, CommandWidth, CommandHeight};
    const ui::TwipRect left{
        right.left - CommandGap - CommandWidth, CommandTop, CommandWidth, CommandHeight};
    OKButton = button(u"OKButton"_s, u"Aceptar"_s, left, neutral);
    on(OKButton, &QPushButton::clicked, &DLGSelProb::OKButton_Click);
    auto* CancelButton = button(u"CancelButton"_s, u"Cancelar"_s, right, neutral);
    on(CancelButton, &QPushButton::clicked, &DLGSelProb::CancelButton_Click);
    new ui::Tray({OKButton, CancelButton}, ui::Tray::Shape::Strip);
}

void DLGSelProb::makeOptions()
{
    QGroupBox* parent = frame(
        u"Frame1"_s, u"&Tipo de problemas"_s, {Margin, FrameTop, OptionsWidth, FrameHeight});
    constexpr double RowWidth = OptionsWidth - 2 * Indent;
    auto* group =
        add(new ui::RadioGroup(parent), {}, {Indent, FirstRow, RowWidth, 3 * RowHeight});
    const std::array captions{u"Todos los tipos"_s, u"Con alguna de las seleccionadas"_s,
        u"Con todas las seleccionadas"_s};
    for (int i = 0; i < 3; ++i) {
        auto*& option = core::at(Option1, i);
        option = new QRadioButton(core::at(captions, i), group);
        add(option, u"Option1(%1)"_s.arg(i), {0, i * RowHeight, RowWidth, RowHeight});
        on(option, &QRadioButton::toggled, [this] { Option1_Click(); });
    }
}

void DLGSelProb::makeChecks()
{
    QGroupBox* parent =
        frame(u"Frame2"_s, u"&Operaciones"_s, {ChecksLeft, FrameTop, ChecksWidth, FrameHeight});
    const std::array captions{u"&Multiplic"_s, u"&Divisiones"_s, u"&Sumas"_s, u"&Restas"_s};
    for (int i = 0; i < 4; ++i) {
        auto*& check = core::at(Check1, i);
        check = new QCheckBox(core::at(captions, i), parent);
        add(check, u"Check1(%1)"_s.arg(i),
            {Indent, FirstRow + i * RowHeight, ChecksWidth - 2 * Indent, RowHeight});
        on(check, &QCheckBox::toggled, [this] { Check1_Click(); });
    }
    Check1[0]->setAccessibleName(u"Multiplicaciones"_s);
}

QGroupBox* DLGSelProb::frame(
    const QString& name, const QString& caption, const ui::TwipRect& place)
{
    return add(new QGroupBox(caption, canvas()), name, place);
}

void DLGSelProb::Form_Load()
{
    if (const auto bank = LeerBanco(screens().bankFolder().toRead()))
        m_model.load(bank->lines);
    Option1[0]->setFocus();
}

void DLGSelProb::ContarDisponibles()
{
    const int count = m_model.ContarDisponibles(option(), checkedOperations());
    Text1->setText(ProblemSelection::availableText(count));
    OKButton->setEnabled(count >= 1);
}

ProblemSelection::Option DLGSelProb::option() const
{
    for (std::size_t i = 0; i < Option1.size(); ++i) {
        if (Option1[i]->isChecked())
            return static_cast<ProblemSelection::Option>(i);
    }
    return ProblemSelection::NoOption;
}

OperationMask DLGSelProb::checkedOperations() const
{
    OperationMask mask = 0;
    for (std::size_t k = 0; k < Check1.size(); ++k) {
        if (Check1[k]->isChecked())
            mask = static_cast<OperationMask>(mask | 1U << k);
    }
    return mask;
}

void DLGSelProb::OKButton_Click()
{
    const auto chosen = option();
    m_choice = {chosen == ProblemSelection::NoOption ? ProblemSelection::AllTypes : chosen,
        checkedOperations()};
    unload();
}

} // namespace problems
