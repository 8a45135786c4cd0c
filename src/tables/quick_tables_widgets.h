#pragma once

#include "ui/verdict_box.h"

#include <QLabel>

namespace tables {

/// The verdict of the quick tables as a patch of plain colour, to be seen from the corner of
/// the eye, with a large tick or cross beside it for those who do not tell the colours apart.
class VerdictPatch : public ui::VerdictBox {
public:
    explicit VerdictPatch(QWidget* parent);

    /// The text is written in the patch's own colour, for screen readers alone.
    void setPatch(const QString& text, Mark mark, const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The seconds that are left, as a number on a colour, rounded as the bar beside it is. No
/// colour before it is first set.
class TimeLabel : public QLabel, public ui::Scalable {
public:
    explicit TimeLabel(QWidget* parent);

    /// Fills the label; the number stays readable on it.
    void setColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_colour;
};

/// The time that is left, as a bar that empties. Not to be seen before it is first set.
class CountdownBar : public QWidget, public ui::Scalable {
public:
    explicit CountdownBar(QWidget* parent);

    /// What is left of the whole, 0 to 1, in a colour.
    void setRemaining(double share, const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_share = 0;
    QColor m_colour;
};

} // namespace tables
