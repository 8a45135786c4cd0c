#pragma once

#include "ui/squared_paper.h"

namespace written {

/// The sheet that a division is worked on. It looks the same beside the strip that can be
/// written as in it, so it tells where it is pressed.
class DivisionSheet : public ui::SquaredPaper {
    Q_OBJECT

public:
    explicit DivisionSheet(QWidget* parent);

signals:
    /// Where the left button went down, in pixels of this control.
    void pressed(const QPoint& point);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace written
