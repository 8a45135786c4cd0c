#include "games/race_keypad.h"

#include "core/defect.h"
#include "games/race_keypad_button.h"
#include "ui/control_factory.h"

#include <QFrame>

using namespace Qt::StringLiterals;

namespace games {

namespace {

constexpr int Columns = 3;
constexpr int Rows = 5; // the first holds the key that hides the keypad
constexpr double KeySize = 400; // twips, as all measures here; keys touch, as large as may be
constexpr double KeypadWidth = Columns * KeySize;
constexpr double ShowTop = 75; // below the keypad's upper edge
constexpr double ShowWidth = 780;
constexpr double ShowHeight = 660;

constexpr QRgb LightSteelBlue = 0xFFB0C4DE;

constexpr ui::look::Font KeyFont{ui::look::Family::CourierNew, 17, true};

QString keyCaption(int key)
{
    switch (key) {
    case RaceKeypad::ClearKey:
        return u"B"_s;
    case RaceKeypad::EnterKey:
        return u"E"_s;
    default:
        return RaceKeypad::digit(key);
    }
}

QRgb keyColour(int key)
{
    switch (key) {
    case RaceKeypad::ClearKey:
        return ui::look::Red;
    case RaceKeypad::EnterKey:
        return ui::look::Green;
    default:
        return LightSteelBlue;
    }
}

} // namespace

RaceKeypad::RaceKeypad(ui::ControlFactory& factory, QPointF upperRight, QObject* parent)
    : QObject(parent)
    , m_factory(factory)
    , PBTeclado(factory.add(new QFrame(factory.canvas()), u"PBTeclado"_s,
          {upperRight.x() - KeypadWidth, upperRight.y(), KeypadWidth, Rows * KeySize}))
    , CBConmutar(factory.add(new RaceKeypadButton(RaceKeypadButton::Drawing::Keys,
                                 u"Mostrar el teclado"_s, factory.canvas()),
          u"CBConmutar"_s,
          {upperRight.x() - ShowWidth, upperRight.y() + ShowTop, ShowWidth, ShowHeight}))
{
    PBTeclado->hide();
    CBCalcu[HideKey] = factory.add(new RaceKeypadButton(RaceKeypadButton::Drawing::Cross,
                                       u"Ocultar el teclado"_s, PBTeclado),
        u"CBCalcu(0)"_s, {(Columns - 1) * KeySize, 0, KeySize, KeySize});
    connect(CBCalcu[HideKey], &QPushButton::clicked, this, [this] { emit pressed(HideKey); });
    connect(CBConmutar, &QPushButton::clicked, this, &RaceKeypad::showPressed);
}

void RaceKeypad::CreaTeclado()
{
    for (int i = 1; i <= EnterKey; ++i) {
        const int column = (i - 1) % Columns;
        const int row = (i - 1) / Columns + 1; // below the key that hides them all
        const ui::TwipRect place{column * KeySize, row * KeySize, KeySize, KeySize};
        auto* key = m_factory.add(new ui::Button(keyCaption(i), QColor(keyColour(i)), PBTeclado),
            u"CBCalcu(%1)"_s.arg(i), place, KeyFont);
        key->setFocusPolicy(Qt::TabFocus); // a click leaves the caret in the answer
        connect(key, &QPushButton::clicked, this, [this, i] { emit pressed(i); });
        core::at(CBCalcu, i) = key;
    }
    CBCalcu[ClearKey]->setAccessibleName(u"Borrar"_s);
    CBCalcu[EnterKey]->setAccessibleName(u"Comprobar"_s);
}

void RaceKeypad::show()
{
    CBConmutar->hide();
    PBTeclado->show();
}

void RaceKeypad::hide()
{
    PBTeclado->hide();
    CBConmutar->show();
}

QString RaceKeypad::digit(int key)
{
    return QString::number(key == ZeroKey ? 0 : key);
}

} // namespace games
