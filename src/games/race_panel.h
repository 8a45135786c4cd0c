#pragma once

#include <QPointF>

#include <array>

namespace ui {
class ControlFactory;
class TextBox;
class VerdictBox;
} // namespace ui

namespace games {

/// What stands above the road: the operation, the answer and its verdict, and the time.
class RacePanel {
public:
    static constexpr int RowBoxes = 5;

    /// Makes its controls with a factory, which must outlive them, from this corner on, in twips.
    RacePanel(ui::ControlFactory& controls, QPointF corner);

    /// The seconds since the first right answer.
    void showTime(int seconds);

    /// Puts a blank in front of the operation, or takes it away.
    void shiftOperation();

    ui::TextBox* TBOperacion = nullptr; ///< the operation to solve
    ui::TextBox* TBResultado = nullptr; ///< the pupil's answer
    ui::VerdictBox* Text4 = nullptr; ///< the verdict
    std::array<ui::TextBox*, RowBoxes> Text2{}; ///< a second row for answers, never shown

private:
    void makeBoxes(ui::ControlFactory& controls, QPointF corner);
    void makeTime(ui::ControlFactory& controls, QPointF corner);
    void makeRow(ui::ControlFactory& controls, QPointF corner);

    ui::TextBox* m_time = nullptr; ///< the seconds since the first right answer
};

} // namespace games
