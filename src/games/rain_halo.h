#pragma once

#include <QWidget>

namespace games {

/// The glow around the number that the keyboard would hit.
class RainHalo : public QWidget {
    Q_OBJECT

public:
    explicit RainHalo(QWidget* canvas);

    /// Goes to a number and lies under it.
    void surround(QWidget& number);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace games
