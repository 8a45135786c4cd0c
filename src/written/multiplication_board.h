#pragma once

#include "core/defect.h"
#include "written/board_row.h"
#include "written/board_signs.h"

#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace ui {
class ControlFactory;
class SquaredBox;
class SquaredPaper;
} // namespace ui

namespace written {

/// The squared sheet of a multiplication and what stands on it: the factors, a row for each
/// partial product and the result, with their signs and rules. Its squares shrink for a number
/// that needs more of them.
class MultiplicationBoard {
public:
    /// Connects a row that has been made; 0 is at the top.
    using RowMade = std::function<void(ui::SquaredBox* row, int fila)>;

    /// Has one row at first.
    MultiplicationBoard(ui::ControlFactory& controls, RowMade rowMade);

    /// Makes or destroys rows until there are so many, though the first one always stays.
    void setRowCount(int rows);
    /// Places what stands below the rows, and empties all.
    void placeRows();
    int rowCount() const { return static_cast<int>(TbParcial.size()); }
    ui::SquaredBox* row(int fila) const { return core::at(TbParcial, fila).box(); }
    QStringList rowTexts() const;
    /// The rows and the result.
    std::vector<ui::SquaredBox*> answerBoxes() const;

    /// Shows the factors selected.
    void showFactors(const QString& factor1, const QString& factor2);
    /// Writes the solution into the rows and the result.
    void showSolution(const QStringList& rows, const QString& result);

    /// Empties rows and result, in their normal colour.
    void empty();
    /// Turns a row or the result red, with a cross beside it.
    void showWrongRow(int fila);
    void showWrongResult();

    /// Chooses the largest squares in which these texts have room, and whatever stands on the
    /// sheet.
    void fitSquares(const QStringList& texts);

    // Where the result and the sheet stand on the canvas, in twips.

    double resultTop() const;
    double bottom() const;
    static double left();
    static double top();
    static double right();
    /// The bottom of a sheet with so many rows; it never has room for fewer than FewestRows.
    static double bottomFor(int rows);
    static constexpr int FewestRows = 3;

    std::array<ui::SquaredBox*, 2> TbFactor{}; ///< the factors
    ui::SquaredBox* TBResultado = nullptr; ///< the result

private:
    void makeFactors();
    WrongMark* makeCross(int number);
    void makeResult(WrongMark& cross);
    void addRow();
    void removeRow();

    ui::ControlFactory& m_controls;
    RowMade m_rowMade;
    ui::SquaredPaper* m_paper = nullptr;
    std::vector<BoardRow> TbParcial; ///< the partial products, row 0 at the top
    std::optional<BoardRow> m_result; ///< with TBResultado
    std::optional<BoardSigns> m_signs;
};

} // namespace written
