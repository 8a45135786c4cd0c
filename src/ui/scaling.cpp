#include "ui/scaling.h"

#include "core/defect.h"

#include <QVariant>
#include <QWidget>

namespace ui {

namespace {

constexpr const char* FactorProperty = "pizarrinFactor";

template <typename Entries> auto& entryOf(Entries& entries, const QWidget* control)
{
    const auto found = entries.find(control);
    if (found == entries.end())
        throw core::Defect("a control that was not added");
    return found->second;
}

} // namespace

void setWindowFactor(QWidget& window, double factor)
{
    window.setProperty(FactorProperty, factor);
}

double factorOf(const QWidget* widget)
{
    while (widget != nullptr) {
        const QWidget* window = widget->window();
        const QVariant factor = window->property(FactorProperty);
        if (factor.isValid())
            return factor.toDouble();
        widget = window->parentWidget();
    }
    return 1;
}

void Scaling::setFactor(double factor)
{
    m_factor = factor;
    for (const auto& [control, entry] : m_entries)
        apply(entry);
}

void Scaling::add(QWidget* control, const TwipRect& place, const look::Font& font)
{
    const auto& [key, entry] =
        *m_entries.insert_or_assign(control, Entry{control, place, font}).first;
    connect(control, &QObject::destroyed, this, [this, control] { m_entries.erase(control); });
    apply(entry);
}

TwipRect Scaling::placeOf(const QWidget* control) const
{
    return entryOf(m_entries, control).place;
}

void Scaling::place(QWidget* control, const TwipRect& place)
{
    entryOf(m_entries, control).place = place;
    control->setGeometry(toPixels(place, m_factor));
}

void Scaling::moveTo(QWidget* control, double left, double top)
{
    TwipRect moved = placeOf(control);
    moved.left = left;
    moved.top = top;
    place(control, moved);
}

void Scaling::setFont(QWidget* control, const look::Font& font)
{
    Entry& entry = entryOf(m_entries, control);
    entry.font = font;
    apply(entry);
}

void Scaling::apply(const Entry& entry) const
{
    entry.control->setFont(look::scaled(entry.font, m_factor));
    if (auto* scalable = dynamic_cast<Scalable*>(entry.control))
        scalable->setFactor(m_factor);
    entry.control->setGeometry(toPixels(entry.place, m_factor));
    entry.control->update();
}

} // namespace ui
