#pragma once

namespace ui {
class ControlFactory;
class SquaredBox;
} // namespace ui

namespace written {

class WrongMark;

/// A row of a board that the pupil writes: its box, which turns red when it is wrong, and the
/// cross that then stands beside it.
class BoardRow {
public:
    /// controls must outlive the row.
    BoardRow(ui::ControlFactory& controls, ui::SquaredBox& box, WrongMark& cross);

    ui::SquaredBox* box() const { return m_box; }

    /// Empties the box and takes the mark away.
    void empty();
    void showWrong();

    /// Takes box and cross off the board.
    void remove();

private:
    ui::ControlFactory* m_controls;
    ui::SquaredBox* m_box;
    WrongMark* m_cross;
};

} // namespace written
