#include "shell/main_menu_screen.h"

#include "core/defect.h"
#include "shell/main_menu.h"
#include "shell/pictograms.h"
#include "ui/control_painting.h"
#include "ui/ground.h"
#include "ui/opening_factor.h"
#include "ui/screens.h"

#include <QAction>
#include <QScreen>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace shell {

namespace {

constexpr double MenuBarTwips = ui::look::MenuBarHeight * ui::TwipsPerPixel;
constexpr double WindowHeight = 8700; // with the menu bar
constexpr double ClientHeight = WindowHeight - MenuBarTwips;
// The right margin equals the left one.
constexpr double ClientWidth = 2 * (MainMenuLayout::ButtonWidth + MainMenuLayout::LeftMargin);
constexpr ui::look::Font ButtonFont{Family::Arial, 16, true}; // 12 points

} // namespace

int Form1::pictogramSide(const QScreen& display)
{
    const QSizeF window(ClientWidth / ui::TwipsPerPixel, WindowHeight / ui::TwipsPerPixel);
    const double factor = ui::openingFactor(window, display.availableGeometry().size());
    return qRound(ui::iconSide(factor) * display.devicePixelRatio());
}

Form1::Form1(ui::Screens& screens, std::vector<Activity> activities, PictogramsAhead* pictograms)
    : Screen(screens, screenName(), u"PIZARRIN"_s, ClientWidth, ClientHeight)
    , m_activities(std::move(activities))
    , m_pictograms(pictograms)
{
    canvas()->setPalette(ui::look::onSlate());
    QAction* about = barItem(u"MnuAce"_s, u"Acerca de..."_s);
    on(about, &QAction::triggered, &Form1::MnuAce_Click);
}

void Form1::Form_Load()
{
    const int count = static_cast<int>(m_activities.size()) + 1;
    const MainMenuLayout layout(count, static_cast<int>(ClientHeight));
    for (int i = 0; i < count; ++i) {
        const bool isExit = i == count - 1;
        const auto& place = core::at(layout.places(), i);
        ui::Button* button = this->button(u"Command1(%1)"_s.arg(i),
            isExit ? u"&Salir"_s : core::at(m_activities, i).caption,
            {place.left, place.top, place.width, place.height},
            isExit ? ui::look::Red : ui::look::Green, ButtonFont);
        button->setIcon(pictogramIcon(
            isExit ? Pictogram::Exit : core::at(m_activities, i).pictogram, m_pictograms));
        on(button, &QPushButton::clicked, &Form1::Command1_Click, i);
        Command1.push_back(button);
    }
    Command1.front()->setFocus();
    ui::Ground::pose(*this, ui::Pose::Waiting);
}

void Form1::Command1_Click(int Index)
{
    if (Index == static_cast<int>(Command1.size()) - 1) {
        exitProgram();
        return;
    }
    const Activity& activity = core::at(m_activities, Index);
    if (activity.shown == Activity::Shown::Modal)
        screens().showModal(activity.screen, *this);
    else
        screens().show(activity.screen);
}

void Form1::exitProgram()
{
    // In this order; a dialog or an activity that is not here is closed whenever the menu can be
    // clicked.
    for (const QString& name : {u"FormProblemas"_s, u"Form8"_s, u"Form6"_s, u"Form5"_s,
             u"Form4"_s, u"Form3"_s, u"Form2"_s})
        screens().unload(name);
    unload();
}

void Form1::Form_QueryUnload()
{
    for (const QString& name : {u"Dialog"_s, u"Form3"_s, u"Form2"_s})
        screens().unload(name);
}

void Form1::MnuAce_Click()
{
    ui::MessageBox::show(*this,
        u"Pizarrin: multiplicar y dividir en primaria.\r\n"
        "Se puede usar, copiar y cambiar (licencia MIT)."_s);
}

} // namespace shell
