#pragma once

#include "games/car_catalogue.h"
#include "ui/screen.h"

namespace ui {
class ListBox;
}

namespace games {

/// The options of the race: both cars and the race type. Leaving it by any way only hides
/// it: it remembers what was accepted last.
class DlgCarrera : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("DlgCarrera"); }

    explicit DlgCarrera(ui::Screens& screens);

    // Positions from 0, as "Aceptar" stored them last.
    core::Int16 Personaje() const { return m_accepted.Personaje; }
    core::Int16 Rival() const { return m_accepted.Rival; }
    core::Int16 Tipo() const { return m_accepted.Tipo; }

protected:
    void Form_Load() override;
    void closeRequested() override;

private:
    ui::ListBox* list(const QString& name, const ui::TwipRect& place, const QString& title);
    QLabel* image(const QString& name, const ui::TwipRect& road, const QString& lane,
        const QString& accessibleName);

    void listCars();
    void List1_Click();
    void List2_Click();
    void OKButton_Click();

    void showPicture(QLabel* image, const QString& fileName);

    RaceOptions m_accepted;
    PictureNames NombresImagen;
    ui::ListBox* List1 = nullptr; ///< the pupil's car
    ui::ListBox* List2 = nullptr; ///< the rival's car
    ui::ListBox* List3 = nullptr; ///< the race type
    QLabel* Image1 = nullptr; ///< the pupil's car as chosen
    QLabel* Image2 = nullptr; ///< the rival's car as chosen
};

} // namespace games
