#include "games/race_keypad.h"

#include "core/defect.h"
#include "games/race_keypad_button.h"
#include "ui/control_factory.h"

#include <QFrame>

using namespace Qt::StringLiterals;

namespace games {

namespace {

// Keys by their index; 1 to 9 are digits.
constexpr int HideKey = 0;
constexpr int ClearKey = 10;
constexpr int ZeroKey = 11;
constexpr int EnterKey = 12;

constexpr int Columns = 3;
constexpr int Rows = 5; // the first holds the key that hides the keypad
constexpr double KeySize = 400; // twips, as all measures here; keys touch, as large as may be
constexpr double KeypadWidth = Columns * KeySize;
constexpr double ShowTop = 75; // below the keypad's upper edge
constexpr double ShowWidth = 780;
constexpr double ShowHeight = 660;

constexpr QRgb LightSteelBlue = 0xFFB0C4DE;

constexpr ui::look::Font KeyFont{ui::look::Family::CourierNew, 17, true};

/// The digit on a key, as typed.
QString digit(int key)
{
    return QString::number(key == ZeroKey ? 0 : key);
}

QString keyCaption(int key)
{
    switch (key) {
    case ClearKey:
        return u"B"_s;
    case EnterKey:
        return u"E"_s;
    default:
        return digit(key);
    }
}

QRgb keyColour(int key)
{
    switch (key) {
    case ClearKey:
        return ui::look::Red;
    case EnterKey:
        return ui::look::Green;
    default:
        return LightSteelBlue;
    }
}

} // namespace

RaceKeypad::RaceKeypad(ui::HandlerGuard& guard, ui::ControlFactory& factory, QPointF upperRight,
    ui::TextBox& answer, Callbacks callbacks)
    : SignalHandlers(guard, static_cast<QObject&>(*this))
    , m_factory(factory)
    , m_answer(answer)
    , m_callbacks(std::move(callbacks))
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
    on(CBCalcu[HideKey], &QPushButton::clicked, &RaceKeypad::CBCalcu_Click, HideKey);
    on(CBConmutar, &QPushButton::clicked, &RaceKeypad::CBConmutar_Click);
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
        on(key, &QPushButton::clicked, &RaceKeypad::CBCalcu_Click, i);
        core::at(CBCalcu, i) = key;
    }
    CBCalcu[ClearKey]->setAccessibleName(u"Borrar"_s);
    CBCalcu[EnterKey]->setAccessibleName(u"Comprobar"_s);
}

void RaceKeypad::CBConmutar_Click()
{
    m_callbacks.letGoOfFocus();
    CBConmutar->hide();
    PBTeclado->show();
}

void RaceKeypad::CBCalcu_Click(int Index)
{
    if (Index == HideKey) {
        m_callbacks.letGoOfFocus();
        PBTeclado->hide();
        CBConmutar->show();
        return;
    }
    if (Index == EnterKey) {
        m_callbacks.enter();
        return;
    }
    m_answer.setEdge({}); // as when it is typed into
    if (Index == ClearKey)
        m_answer.clear();
    else
        m_answer.setText(m_answer.text() + digit(Index));
}

} // namespace games
