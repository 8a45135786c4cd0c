#pragma once

#include <QString>

#include <array>
#include <vector>

class QWidget;

namespace ui {
class ControlFactory;
class TextBox;
class VerdictBox;
} // namespace ui

namespace tables {

class Poster;
class PosterHalf;

/// What the multiplication tables show: a table on its poster or, in the same place, a question
/// and its verdict. Whichever is not up stands beside the canvas, disabled.
class TablesBoard {
public:
    // Of the canvas, in twips.

    static constexpr double Width = 6400;
    static constexpr double Height = 5325;

    /// controls must outlive the board.
    explicit TablesBoard(ui::ControlFactory& controls);

    /// Has the questions up, with these buttons, or the table.
    void showQuestions(bool shown, const std::vector<QWidget*>& commands);

    /// Rows 1 to 5 and rows 6 to 10.
    void writeTable(const QString& firstHalf, const QString& secondHalf);

    /// Takes the last answer away, and waits for the next one in its box.
    void writeQuestion(int table, int multiplier);
    /// Shows the operation selected, up to the answer.
    void selectOperation();
    void deselectOperation();

    PosterHalf* TbTabla1 = nullptr; ///< rows 1 to 5
    std::array<ui::TextBox*, 5> TbOperacion{}; ///< table, sign, multiplier, sign, answer
    ui::TextBox* answer() const { return TbOperacion[4]; }
    ui::VerdictBox* Text1 = nullptr; ///< the verdict

private:
    void makeTables();
    void makeQuestion();
    void makeVerdict();
    void show(QWidget* control, bool shown, double shift);

    ui::ControlFactory& m_controls;
    Poster* m_poster = nullptr; ///< behind both halves
    PosterHalf* TbTabla2 = nullptr; ///< rows 6 to 10
};

} // namespace tables
