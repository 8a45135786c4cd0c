#include "activities.h"
#include "display.h"
#include "gallery.h"
#include "pictures.h"

#include "ui/application.h"
#include "ui/style.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// Everything at its place at once: the same pictures in every run.
class StillStyle final : public ui::Style {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* returnData) const override
    {
        return hint == SH_Widget_Animation_Duration
            ? 0
            : ui::Style::styleHint(hint, option, widget, returnData);
    }
};

} // namespace

int main(int argc, char* argv[])
{
    gallery::LaptopDisplay display;
    ui::ignoreDesktopSettings();
    QApplication application(argc, argv);
    ui::setUpApplication();
    QApplication::setStyle(new StillStyle);

    const QStringList arguments = QApplication::arguments();
    gallery::Gallery gallery(arguments.value(1, u"pictures"_s),
        QString::fromUtf8(PIZARRIN_RESOURCES), arguments.mid(2));
    gallery::addMenu(gallery);
    for (const shell::Activity& activity : activities()) {
        const auto pictures = gallery::picturesOf(activity.screen);
        if (pictures == nullptr)
            qFatal("no pictures of %s", qPrintable(activity.screen));
        pictures(gallery);
    }
    gallery::addProblemsEditor(gallery);
    return 0;
}
