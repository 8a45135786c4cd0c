#pragma once

#include "games/backdrop.h"
#include "games/race_course.h"

namespace games {

/// The road of the race, seen from the side of its start (at the right) to its finish (at the
/// left): the pupil's lane and the rival's below it, each with its name on the asphalt, between
/// kerbs. All measures are twips.
class RaceTrack : public Backdrop {
public:
    static constexpr double Width = 12000;
    static constexpr double Height = 2800;
    static constexpr double FinishLine = 300; ///< left edge of the chequered line
    static constexpr double StartLine =
        RaceCourse::StartLeft - 100; ///< left edge of the white line

    explicit RaceTrack(QWidget* parent);

    /// Lights the first of the marks on the pupil's kerb, one for each step of the car.
    void setPassedMarks(int marks);

protected:
    void draw(QPainter& painter) override;

private:
    int m_passedMarks = 0;
};

} // namespace games
