#pragma once

#include "ui/button.h"
#include "ui/scaling.h"

namespace games {

/// A button without a caption that shows or hides the keypad: it carries a small drawing.
class RaceKeypadButton : public ui::Button, public ui::Scalable {
public:
    enum class Drawing { Keys, Cross };

    /// name: what assistive tools call it, shown as a hint too.
    RaceKeypadButton(Drawing drawing, const QString& name, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Drawing m_drawing;
};

} // namespace games
