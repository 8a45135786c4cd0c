#include "games/listed_cars.h"

#include <QDir>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmap>

#include <future>
#include <utility>
#include <vector>

namespace games {

namespace {

using Pictures = std::vector<QImage>;

/// Null where a picture cannot be read: who needs it will hear of it when it is chosen.
Pictures readListed(const QDir& folder, const QStringList& fileNames)
{
    constexpr int LargestFactor = 4;
    Pictures pictures;
    for (const QString& fileName : fileNames) {
        QImageReader reader(folder.filePath(fileName));
        // Smaller while it is read: a tenth of the time.
        reader.setScaledSize(
            reader.size().scaled(ListedCar * LargestFactor, Qt::KeepAspectRatio));
        pictures.push_back(reader.read());
    }
    return pictures;
}

/// One of some pictures that are being read meanwhile: they are waited for when it is looked at.
class ListedIcon final : public QIconEngine {
public:
    ListedIcon(std::shared_future<Pictures> pictures, std::size_t index)
        : m_pictures(std::move(pictures))
        , m_index(index)
    {
    }

    void paint(
        QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(place, icon().pixmap(place.size(), ratio, mode, state));
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    bool isNull() override { return icon().isNull(); }
    QIconEngine* clone() const override { return new ListedIcon(*this); }

private:
    const QIcon& icon()
    {
        if (m_pictures.valid())
            take(std::exchange(m_pictures, {}).get().at(m_index));
        return m_icon;
    }

    void take(const QImage& image)
    {
        if (image.isNull())
            return;
        const QPixmap picture = QPixmap::fromImage(image);
        m_icon.addPixmap(picture, QIcon::Normal);
        m_icon.addPixmap(picture, QIcon::Selected); // else it would be tinted
    }

    std::shared_future<Pictures> m_pictures;
    std::size_t m_index;
    QIcon m_icon;
};

} // namespace

QList<QIcon> listedCars(const QString& folder, const QStringList& fileNames)
{
    const auto pictures = std::async(readListed, QDir(folder), fileNames).share();
    QList<QIcon> icons;
    for (std::size_t i = 0; i < static_cast<std::size_t>(fileNames.size()); ++i)
        icons << QIcon(new ListedIcon(pictures, i));
    return icons;
}

} // namespace games
