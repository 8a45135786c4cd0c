#pragma once

#include "ui/placement.h"

#include <QObject>

#include <array>

class QGroupBox;
class QLabel;
class QRadioButton;

namespace ui {
class ControlFactory;
class TextBox;
} // namespace ui

namespace tables {

/// What ends the quick tables, as the pupil chooses it: one of four ways, three with a limit.
class LimitOptions : public QObject {
    Q_OBJECT

public:
    /// Makes its controls in a frame there, in twips.
    LimitOptions(ui::ControlFactory& controls, const ui::TwipRect& place, QObject* parent);

    /// Chooses the way without a limit.
    void chooseNone();
    /// Asks for what a way, by its index, has a limit of.
    void askLimit(int way);
    /// What was typed as the limit.
    QString limit() const;
    void hide();

signals:
    void chosen(int way);

private:
    void makeWays(ui::ControlFactory& controls);

    QGroupBox* Frame1; ///< holds the others; hidden while the drill runs
    std::array<QRadioButton*, 4> Option1{}; ///< what ends the drill
    QLabel* Label1; ///< what the limit counts
    ui::TextBox* Text1; ///< the limit
};

} // namespace tables
