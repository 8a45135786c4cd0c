#pragma once

#include "ui/button.h"
#include "ui/memo.h"
#include "ui/scaling.h"
#include "ui/verdict_box.h"

#include <QLabel>

namespace ui {

/// Makes controls on a canvas, names and places them. Places are in twips on the canvas, or in
/// the frame that a control was made on; names are object names, an element of an array with
/// its index: u"Command2(0)"_s.
class ControlFactory {
public:
    /// The canvas must outlive the controls.
    explicit ControlFactory(QWidget* canvas);
    ControlFactory(const ControlFactory&) = delete;
    ControlFactory& operator=(const ControlFactory&) = delete;

    QWidget* canvas() const { return m_canvas; }
    Scaling& scaling() { return m_scaling; }

    /// Names and places a control that was made on canvas() or on a frame there, and gives it
    /// its font.
    template <typename Control>
    Control* add(Control* control, const QString& name, const TwipRect& place,
        const look::Font& font = look::Instruction)
    {
        addControl(control, name, place, font);
        return control;
    }
    TextBox* entryBox(const QString& name, const TwipRect& place, const look::Font& font,
        const QString& accessibleName);
    TextBox* displayBox(const QString& name, const TwipRect& place, const look::Font& font,
        const QString& accessibleName, const QString& text = {});
    /// The line that counts exercises and errors: quiet beside the work.
    TextBox* countersBox(const QString& name, const TwipRect& place, const QString& text,
        const look::Font& font = look::Counters);
    VerdictBox* verdictBox(
        const QString& name, const TwipRect& place, const QString& accessibleName);
    /// An entry box of several lines.
    Memo* memo(const QString& name, const TwipRect& place, const look::Font& font,
        const QString& accessibleName);
    /// A text of several lines that is only shown.
    Memo* displayMemo(const QString& name, const TwipRect& place, const look::Font& font,
        const QString& accessibleName, const QString& text = {});
    Button* button(const QString& name, const QString& caption, const TwipRect& place,
        const QColor& fill, const look::Font& font = look::Command);
    /// A caption; with a buddy its access key leads there.
    QLabel* label(const QString& name, const QString& caption, const TwipRect& place,
        const look::Font& font = look::Instruction, QWidget* buddy = nullptr);

    // Of controls that were added.

    TwipRect placeOf(const QWidget* control) const { return m_scaling.placeOf(control); }
    void place(QWidget* control, const TwipRect& place) { m_scaling.place(control, place); }
    void moveTo(QWidget* control, double left, double top)
    {
        m_scaling.moveTo(control, left, top);
    }
    void setControlFont(QWidget* control, const look::Font& font)
    {
        m_scaling.setFont(control, font);
    }

private:
    void addControl(
        QWidget* control, const QString& name, const TwipRect& place, const look::Font& font);

    QWidget* m_canvas;
    Scaling m_scaling;
};

} // namespace ui
