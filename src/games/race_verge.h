#pragma once

#include "games/backdrop.h"

namespace games {

/// The landscape on both sides of the road: sky and hills, and grass with the chequered flag at
/// the finish and a light at the start that is green while the race runs. All measures are
/// twips.
class RaceVerge : public Backdrop {
public:
    static constexpr double Above = 1180; ///< sky and grass beyond the road
    static constexpr double Below = 120;

    explicit RaceVerge(QWidget* parent);

    void setRunning(bool running);

protected:
    void draw(QPainter& painter) override;

private:
    bool m_running = false;
};

} // namespace games
