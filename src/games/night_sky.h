#pragma once

#include "ui/scaling.h"

#include <QPixmap>
#include <QWidget>

namespace games {

/// The night in which numbers fall: stars, a moon and hills, in colours on which every drop
/// and every text of the scoreboard can be read.
class NightSky : public QWidget, public ui::Scalable {
public:
    explicit NightSky(QWidget* parent);

    static constexpr QRgb Top = 0xFF1B2440;
    static constexpr QRgb Bottom = 0xFF31406B;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture; ///< drawn once a size
};

} // namespace games
