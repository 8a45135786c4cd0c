#include "games/race_options_screen.h"

#include "core/defect.h"
#include "games/car_picture.h"
#include "games/listed_cars.h"
#include "ui/list_box.h"
#include "ui/picture.h"
#include "ui/screens.h"
#include "ui/tray.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace games {

namespace {

// Twips.
constexpr double LargestPicture = 540; // wide; a wider one is shown so wide

constexpr double Margin = 240;
constexpr double LabelTop = 45; // the ring of a focused list lies below
constexpr double LabelHeight = 390;
constexpr double ListTop = 480;
constexpr double CarListWidth = 4350;
constexpr double CarListHeight = 6180; // ten lines
constexpr double TypeListWidth = 3600;
constexpr double TypeListHeight = 2400; // four lines
constexpr double RoadTop = 3210;
constexpr double RoadHeight = 720;
constexpr double StripMargin = 180; // around the button
constexpr double OkTop = ListTop + CarListHeight + 90 + StripMargin;
constexpr double OkWidth = 2100;
constexpr double OkHeight = 510;
constexpr std::array<double, 3> Column{
    Margin, 2 * Margin + CarListWidth, 3 * Margin + 2 * CarListWidth};

constexpr double Width = Column[2] + TypeListWidth + Margin;
constexpr double Height = OkTop + OkHeight + StripMargin;

constexpr ui::look::Font LaneName{ui::look::Family::Andika, 18, true};

} // namespace

DlgCarrera::DlgCarrera(ui::Screens& screens)
    : Screen(screens, screenName(), u"Opciones"_s, Width, Height)
{
    const QString player = u"Selecciona tu &coche"_s;
    const QString rival = u"Selecciona el coche de tu rival"_s;
    const QString type = u"Selecciona el &tipo de carrera"_s;
    List1 = list(u"List1"_s, {Column[0], ListTop, CarListWidth, CarListHeight}, player);
    List2 = list(u"List2"_s, {Column[1], ListTop, CarListWidth, CarListHeight}, rival);
    List3 = list(u"List3"_s, {Column[2], ListTop, TypeListWidth, TypeListHeight}, type);
    for (ui::ListBox* cars : {List1, List2})
        cars->setPictureSize(ListedCar);
    label(u"Label1"_s, player, {Column[0], LabelTop, CarListWidth, LabelHeight},
        ui::look::Instruction, List1);
    label(u"Label2"_s, rival, {Column[1], LabelTop, CarListWidth, LabelHeight});
    label(u"Label3"_s, type, {Column[2], LabelTop, TypeListWidth, LabelHeight},
        ui::look::Instruction, List3);
    Image1 = image(
        u"Image1"_s, {Column[2], RoadTop, TypeListWidth, RoadHeight}, u"TÚ"_s, u"Tu coche"_s);
    Image2 = image(u"Image2"_s, {Column[2], RoadTop + RoadHeight, TypeListWidth, RoadHeight},
        u"RIVAL"_s, u"El coche de tu rival"_s);
    on(List1, &QListWidget::currentRowChanged, [this] { List1_Click(); });
    on(List2, &QListWidget::currentRowChanged, [this] { List2_Click(); });

    auto* OKButton =
        button(u"OKButton"_s, u"Aceptar"_s, {Width - Margin - OkWidth, OkTop, OkWidth, OkHeight},
            ui::look::palette().color(QPalette::Button));
    on(OKButton, &QPushButton::clicked, &DlgCarrera::OKButton_Click);
    new ui::Tray({OKButton}, ui::Tray::Shape::Strip);
}

ui::ListBox* DlgCarrera::list(
    const QString& name, const ui::TwipRect& place, const QString& title)
{
    auto* list = add(new ui::ListBox(canvas()), name, place);
    list->setAccessibleName(QString(title).remove(u'&'));
    return list;
}

/// An image, still empty, on a lane of the road with its name.
QLabel* DlgCarrera::image(const QString& name, const ui::TwipRect& road, const QString& lane,
    const QString& accessibleName)
{
    QLabel* ground = label(u"Road"_s + name, QChar(QChar::Nbsp) + lane, road, LaneName);
    QPalette grey = ground->palette();
    grey.setColor(QPalette::Window, QColor(LaneGrey));
    grey.setColor(QPalette::WindowText, Qt::white);
    ground->setPalette(grey);
    ground->setAutoFillBackground(true);
    QLabel* image = label(name, {}, {road.left + road.width * 0.7, road.top, 0, road.height});
    image->setAccessibleName(accessibleName);
    image->setScaledContents(true);
    return image;
}

void DlgCarrera::Form_Load()
{
    NombresImagen = pictureNames();
    listCars();
    for (const QString& type : raceTypes())
        List3->addItem(type);
    for (ui::ListBox* list : {List1, List2, List3})
        list->setCurrentRow(0);
    List1->setFocus();
}

void DlgCarrera::listCars()
{
    QStringList files;
    for (const Car& car : carCatalogue())
        files << car.picture;
    const QList<QIcon> pictures = listedCars(screens().resources(), files);
    for (int row = 0; row < Cars; ++row) {
        for (ui::ListBox* list : {List1, List2})
            list->addItem(
                new QListWidgetItem(pictures.at(row), core::at(carCatalogue(), row).caption));
    }
}

void DlgCarrera::List1_Click()
{
    showPicture(Image1, pictureName(pictureNames(), List1->currentRow()));
}

void DlgCarrera::List2_Click()
{
    const int row = List2->currentRow();
    if (row >= 0 && row < Cars)
        showPicture(Image2, core::at(NombresImagen, row));
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
