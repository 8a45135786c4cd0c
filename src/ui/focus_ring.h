#pragma once

#include "ui/scaling.h"

#include <QPointer>
#include <QWidget>

namespace ui {

/// The ring around the control that has the focus, drawn outside its edge. Stands on a
/// screen's canvas, above the controls, and follows the focus by itself. White where it
/// stands on slate, else the highlight of the canvas's palette; thin around what is only read.
class FocusRing : public QWidget, public Scalable {
public:
    explicit FocusRing(QWidget* canvas);

    /// A control that marks its place by itself gets no ring: on squared paper one would lie on
    /// rules and digits.
    static void leaveOut(QWidget& control);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(QWidget* focused);
    void surround();
    int ringWidth() const;

    QPointer<QWidget> m_focused;
};

} // namespace ui
