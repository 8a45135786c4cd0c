#pragma once

#include "ui/look.h"
#include "ui/placement.h"

#include <QObject>

#include <unordered_map>

class QWidget;

namespace ui {

/// A control that draws or measures by the factor of its window, which is pushed to it.
class Scalable {
public:
    virtual ~Scalable() = default;
    virtual void setFactor(double factor) { m_factor = factor; }

protected:
    double factor() const { return m_factor; }

private:
    double m_factor = 1;
};

/// Tells a window its factor, for what is painted in it by a style.
void setWindowFactor(QWidget& window, double factor);

/// The factor that the window of a widget was told, or, where it was told none (a box, a menu),
/// the window which that one belongs to; 1 when there is none.
double factorOf(const QWidget* widget);

/// Where controls stand, in twips, and in which fonts; one factor maps all of them to pixels.
/// Forgets a control that is destroyed.
class Scaling : public QObject {
public:
    double factor() const { return m_factor; }

    /// Places every control anew.
    void setFactor(double factor);

    void add(QWidget* control, const TwipRect& place, const look::Font& font);

    // Of controls that were added.

    TwipRect placeOf(const QWidget* control) const;
    void place(QWidget* control, const TwipRect& place);
    void moveTo(QWidget* control, double left, double top);
    void setFont(QWidget* control, const look::Font& font);

private:
    struct Entry {
        QWidget* control = nullptr;
        TwipRect place;
        look::Font font;
    };

    void apply(const Entry& entry) const;

    double m_factor = 1;
    std::unordered_map<const QWidget*, Entry> m_entries;
};

} // namespace ui
