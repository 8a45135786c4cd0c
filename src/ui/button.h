#pragma once

#include <QPushButton>

namespace ui {

/// A command button filled with one colour. With the focus it answers Enter (both Enter
/// keys) and Space; its access key gives it the focus and clicks it at once.
class Button : public QPushButton {
public:
    Button(const QString& caption, const QColor& fill, QWidget* parent);

    void setFill(const QColor& fill);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace ui
