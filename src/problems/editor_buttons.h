#pragma once

#include <QPointF>

#include <array>

namespace ui {
class Button;
class ControlFactory;
} // namespace ui

namespace problems {

/// The buttons of the editor: in a row below the template, what is done with it; on the strip at
/// the bottom, the ways out. What these do, the screen decides.
class EditorButtons {
public:
    // In twips.

    static constexpr double ActionHeight = 510;
    /// From the bottom of the actions to that of the canvas.
    static constexpr double BelowActions = 1140;

    /// The row of actions begins at this corner and is so wide; the strip ends there too.
    EditorButtons(ui::ControlFactory& controls, QPointF corner, double width);

    ui::Button* CBProbar = nullptr; ///< tries the template out
    std::array<ui::Button*, 3> CBAccion{}; ///< stores, empties, deletes
    ui::Button* OKButton = nullptr; ///< saves the bank
    ui::Button* CancelButton = nullptr; ///< closes without saving

private:
    void makeActions(ui::ControlFactory& controls, QPointF corner, double width);
    void makeWaysOut(ui::ControlFactory& controls, QPointF upperRight);
};

} // namespace problems
