#pragma once

#include "games/backdrop.h"

namespace games {

/// The night over the whole window: stars and a moon, the cloud from which numbers fall, hills
/// on which they splash. Darker than any text on it, so that all can be read.
class NightSky : public Backdrop {
public:
    explicit NightSky(QWidget* parent);

    /// Covers the window. canvas: its place there, in pixels; cloud: from its left edge, the end
    /// of the cloud, in pixels.
    void cover(const QRect& canvas, double cloud);

protected:
    void draw(QPainter& painter) override;

private:
    QRect m_canvas;
    double m_cloud = 0;
};

} // namespace games
