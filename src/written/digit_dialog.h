#pragma once

#include "ui/screen.h"

#include <array>

class QCheckBox;

namespace written {

/// Chooses the digits that the second factor of a multiplication may use. Leaving it by any
/// way only hides it: it remembers its check boxes and the last digits accepted.
class Dialog : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("Dialog"); }

    explicit Dialog(ui::Screens& screens);

    /// The digits accepted last, in increasing order, such as 2357; empty at first.
    QString TablasSeleccionadas() const { return m_TablasSeleccionadas; }
    void setTablasSeleccionadas(const QString& digits) { m_TablasSeleccionadas = digits; }

protected:
    void closeRequested() override;

private:
    void makeWaysOut();
    void OKButton_Click();
    void CancelButton_Click();

    QString m_TablasSeleccionadas;
    std::array<QCheckBox*, 9> Check1{}; ///< the digits, 1 first
    ui::Button* OKButton = nullptr; ///< accepts the digits
    ui::Button* CancelButton = nullptr; ///< keeps those accepted last
};

} // namespace written
