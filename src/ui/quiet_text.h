#pragma once

#include <QObject>
#include <QPalette>

#include <optional>

class QWidget;

namespace ui {

/// Lets the text of a control stand back, as units and counters do: quieter than what is worked
/// on, but in full ink while the desktop asks for high contrast.
class QuietText final : public QObject {
public:
    /// Goes with the control.
    explicit QuietText(QWidget* control, bool quiet = true);

    /// Not quiet: the colours that the control had before.
    void setQuiet(bool quiet);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_control;
    std::optional<QPalette> m_before; ///< while the text is quiet
};

} // namespace ui
