#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace ui {

/// Checks a box whenever the focus leaves it for another control of its window. A check
/// that refuses keeps the focus in the box, drops the click or key that was leaving it, and
/// has the reason told.
class LeaveCheck : public QObject {
public:
    /// Returns what is wrong with the box; an empty text lets it go.
    using Check = std::function<QString()>;
    /// Tells what is wrong. Runs from the event loop, behind the event that was dropped.
    using Tell = std::function<void(const QString& reason)>;

    LeaveCheck(QWidget* box, Check check, Tell tell);

    /// Lets the focus go to this control unchecked: the way out of a box that is wrong.
    void exempt(QWidget* control) { m_wayOut = control; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isLeaving(Qt::FocusReason reason) const;
    void refuse(const QString& reason);
    void tellAndLetGo(const QString& reason);

    QWidget* m_box;
    Check m_check;
    Tell m_tell;
    QPointer<QWidget> m_wayOut;
    bool m_refusing = false; ///< input for the window is dropped
};

} // namespace ui
