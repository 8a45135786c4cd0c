#pragma once

#include <QIcon>
#include <QImage>

#include <bitset>
#include <thread>

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
inline constexpr int PictogramCount = static_cast<int>(Pictogram::Exit) + 1;

/// Draws a pictogram into a square, crisp at any size: ink with one accent colour on nothing,
/// quiet when disabled.
void drawPictogram(QPainter& painter, Pictogram id, const QRectF& square, bool enabled = true);

/// Draws all pictograms on a thread of its own, while the program gets ready. An icon that is
/// first painted at that size takes its picture, for which it waits; what is painted is the
/// same. When all are taken, their memory is free again.
class PictogramsAhead {
public:
    /// side: of each picture, in pixels of the display.
    explicit PictogramsAhead(int side);
    ~PictogramsAhead() = default;
    PictogramsAhead(const PictogramsAhead&) = delete; // the thread draws into this one
    PictogramsAhead& operator=(const PictogramsAhead&) = delete;

    /// Paints a picture of that side (pixels) into target, once; false where it is not there.
    bool paint(QPainter& painter, const QRectF& target, Pictogram id, int side);

private:
    const int m_side;
    QImage m_sheet; ///< one below the other
    std::bitset<PictogramCount> m_taken;
    std::jthread m_drawing; ///< ends before the sheet goes
};

/// An icon that draws a pictogram anew at every size and pixel ratio, but for one drawn ahead;
/// what does that must outlive the icon.
QIcon pictogramIcon(Pictogram id, PictogramsAhead* ahead = nullptr);

} // namespace shell
