#include "ui/picture.h"

#include "core/errors.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

[[noreturn]] void fail(const QString& fileName, const QString& folder, const QString& reason)
{
    throw core::FileError(
        u"No se puede mostrar la imagen «%1»: %2. Hay que copiar de nuevo el archivo en "
        "la carpeta «%3»."_s.arg(fileName, reason, QDir::toNativeSeparators(folder)));
}

/// The toolkit decodes a JPEG that breaks off in the middle and fills the rest with grey. A
/// thumbnail inside has an end marker of its own, before the last scan starts.
bool breaksOff(const QByteArray& data)
{
    return data.startsWith("\xFF\xD8")
        && data.lastIndexOf("\xFF\xD9") <= data.lastIndexOf("\xFF\xDA");
}

} // namespace

QImage loadPicture(const QString& folder, const QString& fileName)
{
    QFile file(QDir(folder).filePath(fileName));
    if (!file.exists())
        fail(fileName, folder, u"el archivo no existe"_s);
    if (!file.open(QIODevice::ReadOnly))
        fail(fileName, folder, u"el archivo no se puede leer"_s);
    const QByteArray data = file.readAll();
    QImage image = QImage::fromData(data);
    if (image.isNull() || breaksOff(data))
        fail(fileName, folder, u"el archivo está dañado"_s);
    return image;
}

} // namespace ui
