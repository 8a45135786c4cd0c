#pragma once

#include <QString>

#include <functional>
#include <utility>

class QLineEdit;

namespace ui {
class KeyHandlers;
class SquaredBox;
} // namespace ui

namespace written {

/// Writing in squared boxes from the units leftwards: the caret steps back over each digit that
/// is written, and the place that the next one takes is said.
class UnitsFirst {
public:
    /// Has a screen reader say a text.
    using Say = std::function<void(const QString&)>;

    /// The handlers must outlive the boxes.
    UnitsFirst(ui::KeyHandlers& keys, Say say);

    void connectRow(ui::SquaredBox* row);
    void connectResult(ui::SquaredBox* result);

    /// The caret as the rules count it: the start of a selection, where there is one.
    static int caretOf(const QLineEdit& box);

private:
    void connectPlace(ui::SquaredBox* box);
    void TbParcial_KeyUp(ui::SquaredBox& row, int KeyCode);
    void TBResultado_KeyUp(ui::SquaredBox& result, int KeyCode);
    void sayPlace(const ui::SquaredBox& box);

    ui::KeyHandlers& m_keys;
    Say m_say;
    std::pair<const ui::SquaredBox*, QString> m_said; ///< the place that was said last
};

} // namespace written
