#pragma once

#include <QIcon>
#include <QImage>
#include <QThread>

#include <atomic>
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
/// painted at that size takes its picture if it is drawn by then; what is painted is the same.
/// When all are taken, their memory is free again.
class PictogramsAhead {
public:
    /// side: of each picture, in pixels of the display; priority: of the thread.
    PictogramsAhead(int side, QThread::Priority priority);
    ~PictogramsAhead() = default;
    PictogramsAhead(const PictogramsAhead&) = delete; // the thread draws into this one
    PictogramsAhead& operator=(const PictogramsAhead&) = delete;

    /// Whether a picture of that side (pixels) is drawn and not taken yet.
    bool has(Pictogram id, int side) const;
    /// Paints a picture of that side (pixels) into target, once; false where it is not there.
    bool paint(QPainter& painter, const QRectF& target, Pictogram id, int side);

private:
    void drawAll(const std::stop_token& stop);

    const int m_side;
    QImage m_sheet; ///< one below the other
    std::atomic<int> m_drawn = 0; ///< so many from the first on
    std::bitset<PictogramCount> m_taken;
    std::jthread m_drawing; ///< ends before the sheet goes
};

/// An icon that draws a pictogram anew at every size and pixel ratio, but for one drawn ahead;
/// what does that must outlive the icon.
QIcon pictogramIcon(Pictogram id, PictogramsAhead* ahead = nullptr);

} // namespace shell
