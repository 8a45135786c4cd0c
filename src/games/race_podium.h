#pragma once

#include <QWidget>

namespace games {

/// Podium and confetti over a whole canvas, behind the box that tells of a win. It stands still
/// and lets clicks through.
class RacePodium : public QWidget {
public:
    explicit RacePodium(QWidget* canvas);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace games
