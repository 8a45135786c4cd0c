#include "games/race_screen.h"

#include "games/race_track.h"
#include "ui/glide.h"
#include "ui/screens.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

// The controls of the race but the keypad: where they are and what they are connected to.

namespace games {

namespace {

constexpr double Margin = 240;
constexpr double Width = RaceTrack::Width + 2 * Margin;
constexpr double VergeTop = 2460;
constexpr double TrackTop = VergeTop + RaceVerge::Above;
constexpr double TrackBottom = TrackTop + RaceTrack::Height;
constexpr double CommandTop = TrackBottom + RaceVerge::Below + 240;
constexpr double Height = CommandTop + 560 + 240;

constexpr ui::look::Font OperationFont{Family::CourierNew, 40, true};
constexpr ui::look::Font TimeFont{Family::Arial, 17, true};

} // namespace

FrmCarrera::FrmCarrera(ui::Screens& screens)
    : Screen(screens, screenName(), u"La gran carrera"_s, Width, Height)
    , m_race(screens.random())
    , m_glide(new ui::Glide(
          [this](QWidget* control, double left, double top) { moveTo(control, left, top); },
          this))
{
    makeTrack();
    makeBoxes();
    makeKeypad();
    makeCommands();
    Timer1 = timer(u"Timer1"_s, 1000);
    Timer2 = timer(u"Timer2"_s, m_race.rivalInterval());
    for (QTimer* timer : {Timer1, Timer2})
        timer->setTimerType(Qt::PreciseTimer);
    on(Timer1, &QTimer::timeout, &FrmCarrera::Timer1_Timer);
    on(Timer2, &QTimer::timeout, &FrmCarrera::Timer2_Timer);
    onKeyDown(this, [this](int keyCode, Qt::KeyboardModifiers) { return Form_KeyDown(keyCode); });
}

void FrmCarrera::makeTrack()
{
    m_verge = add(new RaceVerge(canvas()), u"raceVerge"_s,
        {Margin, VergeTop, RaceTrack::Width, TrackBottom + RaceVerge::Below - VergeTop});
    Picture1 = add(new RaceTrack(canvas()), u"Picture1"_s,
        {Margin, TrackTop, RaceTrack::Width, RaceTrack::Height});
    Picture1->setAccessibleName(u"Pista"_s);
    Picture1->setFocusPolicy(Qt::ClickFocus); // for the end of a race
    const std::array<QString, 2> names{u"Tu coche"_s, u"El coche de tu rival"_s};
    for (std::size_t i = 0; i < Image1.size(); ++i) {
        Image1[i] = add(new QLabel(Picture1), u"Image1(%1)"_s.arg(i), {Race::StartLine, 0, 0, 0});
        Image1[i]->setAccessibleName(names[i]);
        Image1[i]->setScaledContents(true);
    }
}

void FrmCarrera::makeBoxes()
{
    displayBox(u"Text1"_s, {Margin, 300, 6000, 360}, ui::look::Instruction, u"Instrucción"_s,
        u"Resuelve la operación para avanzar"_s);
    TBOperacion = displayBox(u"TBOperación"_s, {Margin, 990, 6000, 960}, OperationFont,
        u"Operación"_s, u"7 x 5 + 8 ="_s);
    TBOperacion->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    TBResultado =
        entryBox(u"TBResultado"_s, {6450, 1020, 1740, 900}, OperationFont, u"Respuesta"_s);
    onKeyPress(TBResultado, [this](QChar character) { return TBResultado_KeyPress(character); });
    Text4 = verdictBox(u"Text4"_s, {8430, 1140, 2400, 660}, u"Comprobación"_s);
    m_time = displayBox(u"raceTime"_s, {8430, 300, 2400, 360}, TimeFont, u"Tiempo"_s);
    showTime();

    const std::array<QString, 5> texts{u"888"_s, {}, u"888"_s, {}, u"888"_s};
    for (int i = 0; i < 5; ++i) {
        const auto index = static_cast<std::size_t>(i);
        Text2[index] = entryBox(u"Text2(%1)"_s.arg(i), {Margin + 1200 * i, 1980, 1140, 450},
            ui::look::Instruction, u"Casilla %1"_s.arg(i + 1));
        Text2[index]->setText(texts.at(index));
        Text2[index]->hide(); // no race type fills this row
        onKeyPress(
            Text2[index], [this, i](QChar character) { return Text2_KeyPress(i, character); });
    }
}

void FrmCarrera::makeCommands()
{
    const QColor neutral = ui::look::palette().color(QPalette::Button);
    Command1 = {button(u"Command1(0)"_s, u"&Opciones"_s,
                    {Width / 2 - 2640, CommandTop, 2520, 560}, neutral),
        button(u"Command1(1)"_s, u"&Repetir carrera"_s, {Width / 2 + 120, CommandTop, 2520, 560},
            neutral)};
    for (int i = 0; i < 2; ++i)
        on(Command1.at(static_cast<std::size_t>(i)), &QPushButton::clicked,
            &FrmCarrera::Command1_Click, i);
}

} // namespace games
