#pragma once

#include <QObject>

#include <chrono>
#include <optional>

class QDialog;

namespace core {
class Clock;
}

namespace ui {

/// For the first moment of a box that came up by itself: it takes no key and no click, for
/// they were meant for what it covers. It looks as ever.
class ReadingPause final : public QObject {
public:
    static constexpr std::chrono::milliseconds Length{800};

    /// box must not be on the display yet; it and clock must outlive the pause.
    ReadingPause(QDialog& box, const core::Clock& clock);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOfBox(QObject* watched) const;
    bool isOver() const;

    QDialog& m_box;
    const core::Clock& m_clock;
    std::optional<std::chrono::milliseconds> m_shownAt;
};

} // namespace ui
