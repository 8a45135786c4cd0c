#pragma once

#include "shell/pictograms.h"

#include <QString>

namespace ui {
class Screen;
class Screens;
} // namespace ui

namespace shell {

/// All that the rest of the program knows of an activity: one row of one table, from which
/// the menu, the set of screens, the gallery and the tests are made.
struct Activity {
    enum class Shown { Modal, Modeless };

    QString caption; ///< of its button on the menu
    QString screen; ///< the screen's name
    Shown shown;
    Pictogram pictogram;
    QString source; ///< folder and stem of its files: "tables/repeated_sum"
    ui::Screen* (*make)(ui::Screens&);
};

/// A row for the screen S. Everything is to be given: a row that lacks something does not
/// compile. Screens are asked for their names at the start: with these in their headers, no code
/// of theirs is loaded for it.
template <typename S>
Activity activity(
    const QString& caption, Activity::Shown shown, Pictogram pictogram, const QString& source)
{
    return {caption, S::screenName(), shown, pictogram, source,
        [](ui::Screens& screens) -> ui::Screen* { return new S(screens); }};
}

} // namespace shell
