#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

namespace ui {

/// What lies behind controls of one canvas: it follows them wherever they go, is there while one
/// of them is to be covered, and lets the mouse through.
class Underlay : public QWidget {
    Q_OBJECT

public:
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// The derived class follows for the first time when it has been made.
    explicit Underlay(const std::vector<QWidget*>& controls);

    /// What is to be covered of a control, on the canvas; null for nothing.
    virtual QRect placeOf(const QWidget& control) const = 0;
    /// The place on the canvas of what covers all this; it may be null.
    virtual QRect around(const QRect& covered) const = 0;

    /// Goes where its controls are.
    void follow();

    /// What is to be covered of each control, where there is anything.
    std::vector<QRect> coveredPlaces() const;
    bool liesBehind(const QWidget& control) const;

private:
    std::vector<QPointer<QWidget>> m_controls;
};

} // namespace ui
