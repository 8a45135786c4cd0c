#pragma once

#include "games/race_track.h"
#include "games/race_verge.h"
#include "ui/glide.h"

#include <QLabel>

#include <array>
#include <chrono>

namespace ui {
class ControlFactory;
}

namespace games {

class RacePodium;

/// What a race looks like: the road in its landscape, both cars, and the podium of a win. Where
/// the cars are, the rules decide; here they go there.
class RaceScene : public QObject {
public:
    static constexpr double Width = RaceTrack::Width; ///< in twips, as all measures here
    static constexpr double Height = RaceVerge::Above + RaceTrack::Height + RaceVerge::Below;

    /// Makes its controls with a factory, which must outlive it: the landscape with its left
    /// upper corner there, the podium over the whole canvas.
    RaceScene(ui::ControlFactory& factory, QPointF corner, QSizeF canvas, QObject* parent);

    enum Car { Pupil, Rival };

    /// Takes both cars to the start.
    void lineUp(const QImage& pupil, const QImage& rival);

    /// Drives a car until its left edge is there, in this time.
    void drive(Car car, double left, std::chrono::milliseconds time);

    /// A jolt of the pupil's car, which stays where it is.
    void nudge();

    void setRunning(bool running);
    /// How many marks on the pupil's kerb have been passed.
    void setSolved(int steps);
    /// Shows or hides podium and confetti, over everything on the canvas.
    void celebrate(bool celebrating);

    QWidget* track() const { return Picture1; }

private:
    void lineUp(Car car, const QImage& picture);

    ui::ControlFactory& m_factory;
    RaceVerge* m_verge; ///< the landscape
    RaceTrack* Picture1; ///< the road
    std::array<QLabel*, 2> Image1{}; ///< the cars
    RacePodium* m_podium;
    ui::Glide* m_glide;
};

} // namespace games
