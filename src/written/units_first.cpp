#include "written/units_first.h"

#include "ui/key_handlers.h"
#include "ui/squared_box.h"
#include "written/long_multiplication.h"

using ui::SquaredBox;

namespace written {

namespace {

void stepLeft(QLineEdit& box)
{
    if (const int caret = UnitsFirst::caretOf(box); caret > 0)
        box.setCursorPosition(caret - 1);
}

} // namespace

UnitsFirst::UnitsFirst(ui::KeyHandlers& keys, Say say)
    : m_keys(keys)
    , m_say(std::move(say))
{
}

int UnitsFirst::caretOf(const QLineEdit& box)
{
    return box.hasSelectedText() ? box.selectionStart() : box.cursorPosition();
}

void UnitsFirst::connectRow(SquaredBox* row)
{
    m_keys.onKeyUp(row, [this, row](int KeyCode, Qt::KeyboardModifiers) {
        TbParcial_KeyUp(*row, KeyCode);
        sayPlace(*row);
    });
    connectPlace(row);
}

void UnitsFirst::connectResult(SquaredBox* result)
{
    m_keys.onKeyUp(result, [this, result](int KeyCode, Qt::KeyboardModifiers) {
        TBResultado_KeyUp(*result, KeyCode);
        sayPlace(*result);
    });
    connectPlace(result);
}

void UnitsFirst::connectPlace(SquaredBox* box)
{
    m_keys.onGotFocus(box, [this, box] {
        m_said = {}; // the box is named anew, and so is its place
        sayPlace(*box);
    });
}

void UnitsFirst::TbParcial_KeyUp(SquaredBox& row, int KeyCode)
{
    if (KeyCode == ui::key::Space || KeyCode >= ui::key::Digit0)
        stepLeft(row);
}

void UnitsFirst::TBResultado_KeyUp(SquaredBox& result, int KeyCode)
{
    const bool digit = KeyCode >= ui::key::Digit0 && KeyCode <= ui::key::Digit9;
    const bool keypadDigit = KeyCode >= ui::key::Keypad0 && KeyCode <= ui::key::Keypad9;
    if (digit || keypadDigit || KeyCode == ui::key::Comma)
        stepLeft(result);
}

/// Says which place the next digit takes, where that is another one than before. A reader names
/// the box by itself.
void UnitsFirst::sayPlace(const SquaredBox& box)
{
    if (!box.hasFocus())
        return;
    const auto length = static_cast<int>(box.text().size());
    const QString place = LongMultiplication::spokenCaret(caretOf(box), length);
    if (std::exchange(m_said, {&box, place}) != std::pair(&box, place))
        m_say(place);
}

} // namespace written
