#pragma once

#include "ui/memo.h"

#include <QPalette>
#include <QWidget>

namespace tables {

/// The palette of a text that stands on a blackboard: chalk, without a ground of its own.
QPalette chalk();

/// A blackboard behind other controls, in a wooden frame, on a ledge with a piece of chalk.
class Blackboard : public QWidget, public ui::Scalable {
public:
    explicit Blackboard(QWidget* parent);

    /// Where a board stands that leaves this place, in twips, to be written on.
    static ui::TwipRect around(const ui::TwipRect& writing);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLedge(QPainter& painter) const;
};

/// A slip of paper on a blackboard. What is typed into stands on it: the marks of focus and
/// verdict are seen on paper, not on the board.
class Slip : public QWidget, public ui::Scalable {
public:
    /// Beyond what stands on it, in twips.
    static constexpr double Margin = 120;

    explicit Slip(QWidget* parent);

    /// Where a slip lies under what stands at this place, in twips.
    static ui::TwipRect under(const ui::TwipRect& place);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Lines of text on a blackboard, halfway up and down their place.
class BoardText : public ui::Memo {
public:
    explicit BoardText(QWidget* parent);

    void setFactor(double factor) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void centre();
};

} // namespace tables
