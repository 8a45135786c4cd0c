#pragma once

#include "ui/memo.h"

#include <QPalette>
#include <QWidget>

namespace tables {

/// The palette of a text that stands on a blackboard: chalk on the board's green. A selected
/// text differs only a little, as it is not there to be typed over.
QPalette chalk();

/// A piece of blackboard behind other controls.
class Blackboard : public QWidget, public ui::Scalable {
public:
    explicit Blackboard(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Lines of text on a blackboard that fills the box, halfway up and down it.
class BoardText : public ui::Memo {
public:
    explicit BoardText(QWidget* parent);

    void setFactor(double factor) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void centre();

    Blackboard* m_board;
};

} // namespace tables
