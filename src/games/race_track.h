#pragma once

#include "ui/scaling.h"

#include <QWidget>

namespace games {

/// The road of the race, seen from the side of its start (at the right) to its finish (at the
/// left): two lanes between kerbs. All measures are twips.
class RaceTrack : public QWidget, public ui::Scalable {
public:
    static constexpr double Width = 12000;
    static constexpr double Height = 2600;
    static constexpr double FinishLine = 300; ///< left edge of the chequered line
    static constexpr double StartLine = 9400; ///< left edge of the white line

    explicit RaceTrack(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The grass on both sides of the road, with the chequered flag at the finish and a light at
/// the start that is green while the race runs. All measures are twips.
class RaceVerge : public QWidget, public ui::Scalable {
public:
    static constexpr double Above = 660; ///< grass beyond the road
    static constexpr double Below = 180;

    explicit RaceVerge(QWidget* parent);

    void setRunning(bool running);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_running = false;
};

} // namespace games
