#pragma once

#include <QColor>
#include <QString>

#include <array>

namespace ui {
class ControlFactory;
class TextBox;
} // namespace ui

namespace games {

class NumberRain;
class TokenRow;

/// What stands at the top of the sky: points, hits and lives, and the rule of the phase.
class RainScoreboard {
public:
    static constexpr QRgb Amber = 0xFFFFC83D; ///< what matters on the sky

    /// Makes its controls from side to side of a canvas of this width, in twips.
    RainScoreboard(ui::ControlFactory& controls, double width);

    void showScore(const NumberRain& rain);
    /// Shows the rule selected.
    void showInstruction(const QString& text);
    /// Not even its first letter goes: meant.
    void pretendToTakeInstruction();

private:
    void makeBoxes(ui::ControlFactory& controls, double livesLeft);
    void makeTokens(ui::ControlFactory& controls, double width, double livesLeft);

    std::array<ui::TextBox*, 2> Text2{}; ///< the points of the phase; the lives left
    ui::TextBox* Text1 = nullptr; ///< the rule of the phase
    TokenRow* m_stars = nullptr; ///< the hits that pass a phase
    TokenRow* m_hearts = nullptr; ///< the lives left
};

} // namespace games
