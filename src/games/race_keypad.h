#pragma once

#include "ui/placement.h"

#include <QObject>

#include <array>

class QFrame;

namespace ui {
class Button;
class ControlFactory;
} // namespace ui

namespace games {

/// The keypad on the screen, and the button that shows it. What a key does to the answer, the
/// screen decides.
class RaceKeypad : public QObject {
    Q_OBJECT

public:
    // Keys by their index; 1 to 9 are digits.
    static constexpr int HideKey = 0;
    static constexpr int ClearKey = 10;
    static constexpr int ZeroKey = 11;
    static constexpr int EnterKey = 12;

    /// Makes the frame with its key 0 and, at the same upper right corner, the button that
    /// shows it. The keypad is hidden at first. The factory must outlive it.
    RaceKeypad(ui::ControlFactory& factory, QPointF upperRight, QObject* parent);

    /// Makes the keys 1 to 12.
    void CreaTeclado();

    void show();
    void hide();

    /// The digit on a key, as typed.
    static QString digit(int key);

signals:
    void pressed(int key);
    void showPressed();

private:
    ui::ControlFactory& m_factory;
    QFrame* PBTeclado; ///< holds the keys
    std::array<ui::Button*, 13> CBCalcu{}; ///< 0 hides the keypad, the others are its keys
    ui::Button* CBConmutar; ///< shows the keypad and hides itself
};

} // namespace games
