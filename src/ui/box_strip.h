#pragma once

#include <QWidget>

class QDialog;
class QDialogButtonBox;

namespace ui {

/// The strip of slate along the bottom of a message or input box, on which its buttons stand.
class BoxStrip : public QWidget {
public:
    /// Lies under the buttons of a box. Nothing when the box has no buttons.
    static void layUnderButtons(QDialog& box);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BoxStrip(QDialog& box, QDialogButtonBox& buttons);

    void follow();

    QDialogButtonBox& m_buttons;
};

} // namespace ui
