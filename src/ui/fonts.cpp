#include "ui/fonts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui::look {

namespace {

constexpr int LastResorts = 2; // the names at the end that are found on every system

bool isInstalled(const QStringList& names)
{
    return std::any_of(names.begin(), names.end(),
        [](const QString& name) { return QFontDatabase::hasFamily(name); });
}

/// Nothing is looked for twice: each family has one of these.
class Travelling {
public:
    Travelling(QStringList names, const QString& prefix)
        : m_names(std::move(names))
    {
        const QString folder = QCoreApplication::applicationDirPath() + u"/fonts"_s;
        // Asking for the installed ones reads all of them: first whether there is any need.
        if (QDir(folder).exists() && !isInstalled(m_names.first(m_names.size() - LastResorts)))
            loadFonts(folder, prefix);
    }

    const QStringList& names() const { return m_names; }

private:
    QStringList m_names;
};

} // namespace

int loadFonts(const QString& folder, const QString& prefix)
{
    const auto files = QDir(folder).entryInfoList({prefix + u'*'}, QDir::Files, QDir::Name);
    return static_cast<int>(std::count_if(files.begin(), files.end(), [](const QFileInfo& file) {
        return QFontDatabase::addApplicationFont(file.filePath()) >= 0;
    }));
}

QStringList familiesOf(Family family)
{
    switch (family) {
    case Family::Arial:
        return {u"Arial"_s, u"Liberation Sans"_s, u"sans-serif"_s};
    case Family::Verdana:
        return {u"Verdana"_s, u"DejaVu Sans"_s, u"sans-serif"_s};
    case Family::CourierNew: { // the second has a plain zero, as at school
        static const Travelling courier(
            {u"Courier New"_s, u"Nimbus Mono PS"_s, u"Liberation Mono"_s, u"monospace"_s},
            u"NimbusMonoPS"_s);
        return courier.names();
    }
    case Family::Andika:
        break;
    }
    static const Travelling andika(
        {u"Andika"_s, u"Liberation Sans"_s, u"sans-serif"_s}, u"Andika"_s);
    return andika.names();
}

} // namespace ui::look
