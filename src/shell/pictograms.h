#pragma once

#include <QIcon>

class QPainter;
class QRectF;

namespace shell {

/// The pictures of the main menu's buttons: one an activity, and the way out.
enum class Pictogram {
    RepeatedSum,
    Tables,
    QuickTables,
    Gap,
    Multiples,
    Multiplication,
    Division,
    Problems,
    Combined,
    Rain,
    Race,
    Exit
};

/// Draws a pictogram into a square, crisp at any size: ink with one accent colour on nothing,
/// quiet when disabled.
void drawPictogram(QPainter& painter, Pictogram id, const QRectF& square, bool enabled = true);

/// An icon that draws a pictogram anew at every size and pixel ratio.
QIcon pictogramIcon(Pictogram id);

} // namespace shell
