#include "games/race_options_screen.h"

#include "games/car_picture.h"
#include "ui/list_box.h"
#include "ui/picture.h"
#include "ui/screens.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace games {

namespace {

constexpr double LargestPicture = 540;

constexpr double LabelTop = 240;
constexpr double LabelHeight = 360;
constexpr double ListTop = 660;
constexpr double ListWidth = 3480;
constexpr double CarListHeight = 3990;
constexpr double TypeListHeight = 1695;
constexpr double RoadTop = 4740;
constexpr double RoadHeight = 600;
constexpr std::array<double, 3> Column{240, 4080, 7920};

} // namespace

QString DlgCarrera::screenName()
{
    return u"DlgCarrera"_s;
}

DlgCarrera::DlgCarrera(ui::Screens& screens)
    : Screen(screens, screenName(), u"Opciones"_s, 11640, 5580)
{
    const QString player = u"Selecciona tu &coche"_s;
    const QString rival = u"Selecciona el coche de tu rival"_s;
    const QString type = u"Selecciona el &tipo de carrera"_s;
    List1 = list(u"List1"_s, {Column[0], ListTop, ListWidth, CarListHeight}, player);
    List2 = list(u"List2"_s, {Column[1], ListTop, ListWidth, CarListHeight}, rival);
    List3 = list(u"List3"_s, {Column[2], ListTop, ListWidth, TypeListHeight}, type);
    label(u"Label1"_s, player, {Column[0], LabelTop, ListWidth, LabelHeight},
        ui::look::Instruction, List1);
    label(u"Label2"_s, rival, {Column[1], LabelTop, ListWidth, LabelHeight});
    label(u"Label3"_s, type, {Column[2], LabelTop, ListWidth, LabelHeight}, ui::look::Instruction,
        List3);
    Image1 = image(u"Image1"_s, {Column[0], RoadTop, ListWidth, RoadHeight}, u"Tu coche"_s);
    Image2 = image(
        u"Image2"_s, {Column[1], RoadTop, ListWidth, RoadHeight}, u"El coche de tu rival"_s);
    on(List1, &QListWidget::currentRowChanged, [this] { List1_Click(); });
    on(List2, &QListWidget::currentRowChanged, [this] { List2_Click(); });

    auto* OKButton = button(u"OKButton"_s, u"Aceptar"_s,
        {Column[2], RoadTop + (RoadHeight - 560) / 2, ListWidth, 560},
        ui::look::palette().color(QPalette::Button));
    on(OKButton, &QPushButton::clicked, &DlgCarrera::OKButton_Click);
}

ui::ListBox* DlgCarrera::list(
    const QString& name, const ui::TwipRect& place, const QString& title)
{
    auto* list = add(new ui::ListBox(canvas()), name, place);
    list->setAccessibleName(QString(title).remove(u'&'));
    return list;
}

/// An image, still empty, on a piece of road.
QLabel* DlgCarrera::image(
    const QString& name, const ui::TwipRect& road, const QString& accessibleName)
{
    QLabel* ground = label(u"Road"_s + name, {}, road);
    QPalette grey = ground->palette();
    grey.setColor(QPalette::Window, QColor(LaneGrey));
    ground->setPalette(grey);
    ground->setAutoFillBackground(true);
    QLabel* image = label(name, {}, {road.left + road.width / 2, road.top, 0, road.height});
    image->setAccessibleName(accessibleName);
    image->setScaledContents(true);
    return image;
}

void DlgCarrera::Form_Load()
{
    NombresImagen = pictureNames();
    for (const Car& car : carCatalogue()) {
        List1->addItem(car.caption);
        List2->addItem(car.caption);
    }
    for (const QString& type : raceTypes())
        List3->addItem(type);
    for (ui::ListBox* list : {List1, List2, List3})
        list->setCurrentRow(0);
    List1->setFocus();
}

void DlgCarrera::List1_Click()
{
    showPicture(Image1, pictureName(pictureNames(), List1->currentRow()));
}

void DlgCarrera::List2_Click()
{
    const int row = List2->currentRow();
    if (row >= 0 && row < Cars)
        showPicture(Image2, NombresImagen.at(static_cast<std::size_t>(row)));
}

void DlgCarrera::showPicture(QLabel* image, const QString& fileName)
{
    const QImage picture = ui::loadPicture(screens().resources(), fileName);
    const double naturalWidth = picture.width() * ui::TwipsPerPixel;
    const double naturalHeight = picture.height() * ui::TwipsPerPixel;
    const double width = std::min(naturalWidth, LargestPicture);
    const double height = naturalHeight * width / naturalWidth;
    const ui::TwipRect before = placeOf(image);
    place(image,
        {before.left + (before.width - width) / 2, before.top + (before.height - height) / 2,
            width, height});
    image->setPixmap(QPixmap::fromImage(picture));
}

void DlgCarrera::OKButton_Click()
{
    m_accepted = {List1->currentRow(), List2->currentRow(), List3->currentRow()};
    hide();
}

void DlgCarrera::closeRequested()
{
    hide();
}

} // namespace games
