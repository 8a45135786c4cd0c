#pragma once

#include "core/defect.h"
#include "games/number_rain.h"
#include "games/rain_drop.h"
#include "games/rain_halo.h"
#include "ui/glide.h"

#include <QPointer>

#include <array>
#include <chrono>

namespace ui {
class ControlFactory;
}

namespace games {

/// The numbers on the sky: they flow to where the rules have put them, splash when they are
/// gone, and the one that the keyboard would hit has a halo while somebody plays by keyboard.
class RainField : public QObject {
    Q_OBJECT

public:
    /// A press this near to a number is meant for it; pixels at factor 1.
    static constexpr double Reach = 10;

    /// Makes its controls with a factory, which must outlive it.
    RainField(ui::ControlFactory& factory, QObject* parent);

    /// Makes the number of a slot; it does not show yet.
    RainDrop* make(int slot);
    RainDrop* drop(int slot) const { return core::at(CbNave, slot); }

    /// Notices at this control too whether the pupil plays by keyboard or by mouse.
    void watch(QWidget* control);

    void launch(int slot, const Gota& gota);
    /// Sends a number to its place, for as long as it takes to the next; tick: of the clock.
    void flow(int slot, const Gota& gota, std::chrono::milliseconds tick);
    void clear(int slot);
    void splash(const RainEvent& event) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The sky was pressed within reach of this number, and of no other nearer.
    void pressedNear(int slot);

private:
    void playBy(bool keyboard);
    void showHalo();
    int nearest(QPoint place) const;

    ui::ControlFactory& m_factory;
    QWidget* m_canvas;
    std::array<RainDrop*, RainFall::Slots> CbNave{}; ///< the falling numbers, by slot
    QPointer<RainHalo> m_halo; ///< gone with the canvas, whose numbers lose the focus then
    ui::Glide* m_glide;
    bool m_byKeyboard = false; ///< what the pupil used last
};

} // namespace games
