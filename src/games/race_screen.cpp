#include "games/race_screen.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "games/car_picture.h"
#include "games/race_keypad_button.h"
#include "games/race_options_screen.h"
#include "games/race_track.h"
#include "ui/announcement.h"
#include "ui/glide.h"
#include "ui/picture.h"
#include "ui/screens.h"

#include <QApplication>
#include <QFrame>

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace games {

namespace {

constexpr double Margin = 240;
constexpr double Width = RaceTrack::Width + 2 * Margin;
constexpr double VergeTop = 2460;
constexpr double TrackTop = VergeTop + RaceVerge::Above;
constexpr double TrackBottom = TrackTop + RaceTrack::Height;
constexpr double CommandTop = TrackBottom + RaceVerge::Below + 240;
constexpr double Height = CommandTop + 560 + 240;

constexpr double CarHeight = 1000;
constexpr double Lane = RaceTrack::Height / 2;

constexpr int KeypadColumns = 3;
constexpr double KeyPitch = 400;
constexpr double KeySize = 380; // the rest of the pitch is the gap
constexpr int Keys = 12;
constexpr int ClearKey = 10;
constexpr int ZeroKey = 11;
constexpr int EnterKey = 12;

constexpr QRgb LightSteelBlue = 0xFFB0C4DE;

constexpr ui::look::Font OperationFont{Family::CourierNew, 40, true};
constexpr ui::look::Font KeyFont{Family::CourierNew, 17, true};
constexpr ui::look::Font TimeFont{Family::Arial, 17, true};

const QString Title = u"La gran carrera"_s;

QString keyCaption(int index)
{
    switch (index) {
    case ClearKey:
        return u"B"_s;
    case ZeroKey:
        return u"0"_s;
    case EnterKey:
        return u"E"_s;
    default:
        return QString::number(index);
    }
}

QRgb keyColour(int index)
{
    switch (index) {
    case ClearKey:
        return ui::look::Red;
    case EnterKey:
        return ui::look::Green;
    default:
        return LightSteelBlue;
    }
}

} // namespace

QString FrmCarrera::screenName()
{
    return u"FrmCarrera"_s;
}

FrmCarrera::FrmCarrera(ui::Screens& screens)
    : Screen(screens, screenName(), Title, Width, Height)
    , m_race(screens.random())
    , m_glide(new ui::Glide(
          [this](QWidget* control, double left, double top) { moveTo(control, left, top); },
          this))
{
    makeTrack();
    makeBoxes();
    makeKeypad();
    Command1 = {
        button(u"Command1(0)"_s, u"&Opciones"_s, {Width / 2 - 2640, CommandTop, 2520, 560},
            ui::look::palette().button().color()),
        button(u"Command1(1)"_s, u"&Repetir carrera"_s, {Width / 2 + 120, CommandTop, 2520, 560},
            ui::look::palette().button().color())};
    for (int i = 0; i < 2; ++i)
        on(Command1.at(static_cast<std::size_t>(i)), &QPushButton::clicked,
            &FrmCarrera::Command1_Click, i);
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
    const std::array<QString, 2> names{u"Tu coche"_s, u"El coche de tu rival"_s};
    for (std::size_t i = 0; i < Image1.size(); ++i) {
        Image1[i] = add(new QLabel(Picture1), u"Image1(%1)"_s.arg(i), {Race::StartLine, 0, 0, 0});
        Image1[i]->setAccessibleName(names[i]);
        Image1[i]->setScaledContents(true);
    }
}

void FrmCarrera::makeBoxes()
{
    Text1 = displayBox(u"Text1"_s, {Margin, 300, 6000, 360}, ui::look::Instruction,
        u"Instrucción"_s, u"Resuelve la operación para avanzar"_s);
    TBOperación = displayBox(u"TBOperación"_s, {Margin, 990, 6000, 960}, OperationFont,
        u"Operación"_s, u"7 x 5 + 8 ="_s);
    TBOperación->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    TBResultado =
        entryBox(u"TBResultado"_s, {6450, 1020, 1740, 900}, OperationFont, u"Respuesta"_s);
    onKeyPress(TBResultado, [this](QChar character) { return TBResultado_KeyPress(character); });
    Text4 = verdictBox(u"Text4"_s, {8430, 1140, 2400, 660}, u"Resultado"_s);
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

void FrmCarrera::makeKeypad()
{
    constexpr double Left = Width - Margin - KeypadColumns * KeyPitch;
    PBTeclado = add(new QFrame(canvas()), u"PBTeclado"_s,
        {Left, 240, KeypadColumns * KeyPitch, 5 * KeyPitch});
    PBTeclado->hide();
    CBCalcu[0] = add(new RaceKeypadButton(
                         RaceKeypadButton::Drawing::Cross, u"Ocultar el teclado"_s, PBTeclado),
        u"CBCalcu(0)"_s, {2 * KeyPitch, 0, KeySize, KeySize});
    CBConmutar = add(
        new RaceKeypadButton(RaceKeypadButton::Drawing::Keys, u"Mostrar el teclado"_s, canvas()),
        u"CBConmutar"_s, {Width - Margin - 780, 240, 780, 660});
    on(CBCalcu[0], &QPushButton::clicked, &FrmCarrera::CBCalcu_Click, 0);
    on(CBConmutar, &QPushButton::clicked, &FrmCarrera::CBConmutar_Click);
}

void FrmCarrera::CreaTeclado()
{
    for (int i = 1; i <= Keys; ++i) {
        const ui::TwipRect place{(i - 1) % KeypadColumns * KeyPitch,
            (i - 1) / KeypadColumns * KeyPitch + KeyPitch, KeySize, KeySize};
        auto* key = add(new ui::Button(keyCaption(i), QColor(keyColour(i)), PBTeclado),
            u"CBCalcu(%1)"_s.arg(i), place, KeyFont);
        key->setFocusPolicy(Qt::TabFocus); // a click leaves the caret in the answer
        on(key, &QPushButton::clicked, &FrmCarrera::CBCalcu_Click, i);
        CBCalcu.at(static_cast<std::size_t>(i)) = key;
    }
    CBCalcu[ClearKey]->setAccessibleName(u"Borrar"_s);
    CBCalcu[EnterKey]->setAccessibleName(u"Comprobar"_s);
}

void FrmCarrera::Form_Load()
{
    core::seedByClock(screens().random(), screens().clock());
    Command1[0]->setFill(ui::look::Yellow);
    Command1[1]->setFill(ui::look::Cyan);
    NombresImagen = pictureNames();
    CreaTeclado();
    TBResultado->setFocus();
}

void FrmCarrera::Form_Activate()
{
    chooseOptions();
}

void FrmCarrera::Form_QueryUnload()
{
    screens().unload(DlgCarrera::screenName());
}

void FrmCarrera::chooseOptions()
{
    screens().showModal(DlgCarrera::screenName(), *this, [this] {
        if (screens().loaded(DlgCarrera::screenName()) != nullptr) // else all are being closed
            PreparaCarrera();
    });
}

void FrmCarrera::PreparaCarrera()
{
    TBOperación->clear(); // what stays when a picture cannot be read: no race
    const auto& options = screens().load<DlgCarrera>();
    const QImage player = carPicture(options.Personaje());
    const QImage rival = carPicture(options.Rival());
    m_race.PreparaCarrera({options.Personaje(), options.Rival(), options.Tipo()});
    putCar(0, player);
    putCar(1, rival);
    Timer2->setInterval(m_race.rivalInterval());
    m_verge->setRunning(false);
    showTime();
    NuevaOperacion();
}

QImage FrmCarrera::carPicture(core::Int16 position) const
{
    return withoutRoad(
        ui::loadPicture(screens().resources(), pictureName(NombresImagen, position)));
}

void FrmCarrera::putCar(std::size_t index, const QImage& picture)
{
    QLabel* car = Image1.at(index);
    const double width = CarHeight * picture.width() / picture.height();
    const double top = (Lane - CarHeight) / 2 + static_cast<double>(index) * Lane;
    m_glide->put(car, {Race::StartLine, top});
    place(car, {Race::StartLine, top, width, CarHeight});
    car->setPixmap(QPixmap::fromImage(picture));
}

void FrmCarrera::moveCar(std::size_t index, double left)
{
    const ui::TwipRect from = placeOf(Image1.at(index));
    m_glide->send(Image1.at(index), {from.left, from.top}, {left, from.top});
}

void FrmCarrera::NuevaOperacion()
{
    TBOperación->setText(m_race.operation());
    ui::announce(*TBOperación, m_race.operation());
    TBResultado->clear();
    TBResultado->setFocus();
}

ui::KeyResult FrmCarrera::TBResultado_KeyPress(QChar character)
{
    if (character != QChar(ui::key::Enter))
        return ui::KeyResult::Pass;
    const auto verdict = m_race.answer(core::readNumber(TBResultado->text()));
    switch (verdict) {
    case Race::Verdict::Ignored:
        break;
    case Race::Verdict::Wrong:
        TBResultado->clear();
        Text4->setVerdict(m_race.feedback(), ui::VerdictBox::Mark::Wrong);
        beep();
        break;
    case Race::Verdict::Right:
    case Race::Verdict::Won:
        Text4->setVerdict(m_race.feedback(), ui::VerdictBox::Mark::Right);
        NuevaOperacion();
        showRightAnswer(verdict);
        break;
    }
    return ui::KeyResult::Swallow;
}

ui::KeyResult FrmCarrera::Text2_KeyPress(int Index, QChar character)
{
    if (m_race.isOver()) {
        ui::MessageBox::show(
            *this, u"La carrera ha terminado. Pulsa en uno de los botones inferiores."_s);
        return ui::KeyResult::Swallow;
    }
    if (Index != 4 || character != QChar(ui::key::Enter))
        return ui::KeyResult::Pass;
    const auto verdict = m_race.answerInRow(core::readNumber(Text2[4]->text()));
    if (verdict == Race::Verdict::Wrong) {
        Text4->setVerdict(m_race.feedback(), ui::VerdictBox::Mark::Wrong);
        Text2[4]->clear();
    } else if (verdict != Race::Verdict::Ignored) {
        Text4->setVerdict(m_race.feedback(), ui::VerdictBox::Mark::Right);
        showRightAnswer(verdict);
    }
    return ui::KeyResult::Swallow;
}

void FrmCarrera::showRightAnswer(Race::Verdict verdict)
{
    for (QTimer* timer : {Timer1, Timer2}) {
        if (!timer->isActive())
            timer->start();
    }
    moveCar(0, m_race.playerLeft());
    m_verge->setRunning(true);
    if (verdict == Race::Verdict::Won)
        endRace(m_race.wonText());
}

void FrmCarrera::Timer1_Timer()
{
    m_race.secondPassed();
    showTime();
}

void FrmCarrera::Timer2_Timer()
{
    const auto step = m_race.rivalStep();
    if (step == Race::RivalStep::Ignored)
        return;
    moveCar(1, m_race.rivalLeft());
    if (step == Race::RivalStep::Won)
        endRace(m_race.lostText());
}

void FrmCarrera::endRace(const QString& text)
{
    stopTimers();
    ui::MessageBox::show(*this, text, Title);
    for (ui::Button* command : Command1)
        command->setEnabled(true);
    Text4->setVerdict({}, ui::VerdictBox::Mark::None);
    Command1[1]->setFocus(); // else the toolkit would hand the focus to the keypad
    TBResultado->setEnabled(false);
}

void FrmCarrera::stopTimers()
{
    Timer1->stop();
    Timer2->stop();
    m_verge->setRunning(false);
}

void FrmCarrera::showTime()
{
    m_time->setText(u"Tiempo: %1 s"_s.arg(m_race.seconds()));
}

void FrmCarrera::Command1_Click(int Index)
{
    stopTimers();
    m_race.reset();
    showTime();
    TBResultado->setEnabled(true);
    TBResultado->setFocus();
    if (Index == 0)
        chooseOptions();
    else
        PreparaCarrera();
}

ui::KeyResult FrmCarrera::Form_KeyDown(int KeyCode)
{
    if (KeyCode != ui::key::Control)
        return ui::KeyResult::Pass;
    const QString text = TBOperación->text();
    TBOperación->setText(text.startsWith(u' ') ? text.mid(1) : u' ' + text);
    return ui::KeyResult::Pass;
}

void FrmCarrera::CBConmutar_Click()
{
    TBResultado->setFocus(); // a hidden button would hand the focus on
    CBConmutar->hide();
    PBTeclado->show();
}

void FrmCarrera::CBCalcu_Click(int Index)
{
    if (Index == 0) {
        TBResultado->setFocus();
        PBTeclado->hide();
        CBConmutar->show();
        return;
    }
    if (!TBResultado->isEnabled())
        return;
    if (Index == EnterKey)
        TBResultado_KeyPress(QChar(ui::key::Enter));
    else if (Index == ClearKey)
        TBResultado->clear();
    else
        TBResultado->setText(TBResultado->text() + keyCaption(Index));
}

void FrmCarrera::beep()
{
    QApplication::beep();
}

} // namespace games
