#include "ui/fonts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLibrary>
#include <QThread>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace ui::look {

namespace {

constexpr int LastResorts = 2; // the names at the end that are found on every system

/// Out of the whole list, which costs less than to ask for one family.
QStringList installed(const QStringList& names)
{
    const QStringList all = QFontDatabase::families();
    QStringList found;
    std::copy_if(names.begin(), names.end(), std::back_inserter(found), [&](const QString& name) {
        // One that several makers have made stands there with the maker behind it.
        return std::any_of(all.begin(), all.end(), [&](const QString& family) {
            return family.section(u" ["_s, 0, 0).compare(name, Qt::CaseInsensitive) == 0;
        });
    });
    return found;
}

void loadFonts(const QString& prefix)
{
    const QDir folder(QCoreApplication::applicationDirPath() + u"/fonts"_s);
    for (const QFileInfo& file : folder.entryInfoList({prefix + u'*'}, QDir::Files, QDir::Name))
        QFontDatabase::addApplicationFont(file.filePath());
}

/// The names that are installed, or all where none is. With several, the toolkit looks at once
/// for what else could stand in, and not when a glyph is missing: none too many.
QStringList found(const QStringList& names)
{
    const QStringList there = installed(names);
    return there.isEmpty() ? names : there;
}

QStringList foundOrLoaded(const QStringList& names, const QString& prefix)
{
    if (installed(names.first(names.size() - LastResorts)).isEmpty())
        loadFonts(prefix);
    return found(names);
}

} // namespace

std::jthread readFontSettings()
{
    QThread::currentThread(); // the thread that first uses the toolkit is the main one to it
    return std::jthread([] {
        // The library that the toolkit asks on most systems; elsewhere there is nothing to hurry.
        if (const auto init = QLibrary::resolve(u"fontconfig"_s, 1, "FcInit"))
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): found by its name
            reinterpret_cast<int (*)()>(init)();
    });
}

std::jthread readFontList(std::jthread settings)
{
    return std::jthread([settings = std::move(settings)]() mutable {
        settings.join();
        // The toolkit keeps for all threads what stands in for a font.
        QFontMetrics(scaled({}, 1)).height();
    });
}

QStringList familiesOf(Family family)
{
    switch (family) {
    case Family::Arial: {
        static const QStringList arial =
            found({u"Arial"_s, u"Liberation Sans"_s, u"sans-serif"_s});
        return arial;
    }
    case Family::Verdana: {
        static const QStringList verdana =
            found({u"Verdana"_s, u"DejaVu Sans"_s, u"sans-serif"_s});
        return verdana;
    }
    case Family::CourierNew: { // the second has a plain zero, as at school
        static const QStringList courier = foundOrLoaded(
            {u"Courier New"_s, u"Nimbus Mono PS"_s, u"Liberation Mono"_s, u"monospace"_s},
            u"NimbusMonoPS"_s);
        return courier;
    }
    case Family::Andika:
        break;
    }
    static const QStringList andika =
        foundOrLoaded({u"Andika"_s, u"Liberation Sans"_s, u"sans-serif"_s}, u"Andika"_s);
    return andika;
}

} // namespace ui::look
