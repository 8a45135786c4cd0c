#pragma once

#include <chrono>
#include <optional>

class QWidget;

namespace core {
class Clock;
}

namespace ui {
class ControlFactory;
}

namespace games {

/// Where the focus is while it rains: on the newest number, or out of the way. A key that was
/// meant for the number before is told from one for the new one.
class RainFocus {
public:
    /// The clock must outlive it.
    RainFocus(ui::ControlFactory& controls, const core::Clock& clock);

    /// Has the focus when no number is to have it; out of sight.
    QWidget* place() const { return PbFoco; }
    void rest();
    /// Before a control goes: the toolkit would hand its focus to the next one, and a pupil's
    /// space bar would then hit another number.
    void leave(const QWidget* control);
    /// Gives the focus to a number that has been launched.
    void take(QWidget* number);
    /// Whether it was taken from another number only just now.
    bool isUnnoticed() const;

private:
    QWidget* focused() const;

    const core::Clock& m_clock;
    QWidget* PbFoco; ///< outside the sky: has the focus while no number is to have it
    std::optional<std::chrono::milliseconds> m_taken; ///< when, from another number
};

} // namespace games
