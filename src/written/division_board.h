#pragma once

#include "ui/placement.h"

namespace ui {
class ControlFactory;
class Rule;
class SquaredBox;
class SquaredPaper;
} // namespace ui

namespace written {

class DivisionSheet;
class WorkArea;

/// The squared sheet of a division and what stands on it: the work left of the bracket, right
/// of it the divisor and, under that, the quotient. What can be written lies on white strips.
class DivisionBoard {
public:
    explicit DivisionBoard(ui::ControlFactory& controls);

    /// What an exercise needs of the sheet, in squares.
    struct Room {
        int lineCharacters; ///< of the work, up to the bracket
        int lines; ///< of the work, the dividend's included
        int rightFigures; ///< at the right of the bracket
    };
    /// The sheet grows for what does not fit its first size; downwards only so far that it is
    /// still seen whole, for the work can be scrolled.
    void fit(const Room& room);

    /// The sheet on the canvas, in twips.
    const ui::TwipRect& place() const { return m_place; }
    /// In its first size.
    static ui::TwipRect firstPlace();
    /// Where the middle of the quotient runs, in twips from the top of the canvas.
    static double quotientMiddle();

    DivisionSheet* m_sheet = nullptr; ///< tells where it is pressed beside what can be written
    WorkArea* Text1 = nullptr; ///< the dividend with the work under it
    ui::SquaredBox* Text2 = nullptr; ///< the divisor
    ui::SquaredBox* Text3 = nullptr; ///< the quotient

private:
    void makeSheet();
    void makeWork();
    void makeNumbers();
    void makeLines();
    void placeWork(int lineCharacters, int lines);
    void placeNumbers(double bracket, int figures);

    ui::ControlFactory& m_controls;
    ui::TwipRect m_place;
    ui::SquaredPaper* m_workStrip = nullptr;
    ui::SquaredPaper* m_quotientStrip = nullptr;
    ui::Rule* Line1 = nullptr; ///< the bracket's upright
    ui::Rule* Line2 = nullptr; ///< the bracket's level line
};

} // namespace written
