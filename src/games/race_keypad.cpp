#include "games/race_screen.h"

#include "games/race_keypad_button.h"
#include "games/race_track.h"

#include <QFrame>

using namespace Qt::StringLiterals;

// The keypad on the screen: its keys and what they do to the answer.

namespace games {

namespace {

constexpr double Top = 240;
constexpr int KeypadColumns = 3;
constexpr double KeyPitch = 400;
constexpr double KeySize = 380; // the rest of the pitch is the gap
constexpr int Keys = 12;
constexpr int ClearKey = 10;
constexpr int ZeroKey = 11;
constexpr int EnterKey = 12;

constexpr QRgb LightSteelBlue = 0xFFB0C4DE;

constexpr ui::look::Font KeyFont{ui::look::Family::CourierNew, 17, true};

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

void FrmCarrera::makeKeypad()
{
    constexpr double KeypadWidth = KeypadColumns * KeyPitch;
    const double right = placeOf(Picture1).right();
    PBTeclado = add(new QFrame(canvas()), u"PBTeclado"_s,
        {right - KeypadWidth, Top, KeypadWidth, 5 * KeyPitch});
    PBTeclado->hide();
    CBCalcu[0] = add(new RaceKeypadButton(
                         RaceKeypadButton::Drawing::Cross, u"Ocultar el teclado"_s, PBTeclado),
        u"CBCalcu(0)"_s, {2 * KeyPitch, 0, KeySize, KeySize});
    CBConmutar = add(
        new RaceKeypadButton(RaceKeypadButton::Drawing::Keys, u"Mostrar el teclado"_s, canvas()),
        u"CBConmutar"_s, {right - 780, Top, 780, 660});
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

} // namespace games
