#include "ui/control_factory.h"

#include "ui/quiet_text.h"

using namespace Qt::StringLiterals;

namespace ui {

ControlFactory::ControlFactory(QWidget* canvas)
    : m_canvas(canvas)
{
}

void ControlFactory::addControl(
    QWidget* control, const QString& name, const TwipRect& place, const look::Font& font)
{
    control->setObjectName(name);
    m_scaling.add(control, place, font);
    if (m_canvas->isVisible())
        control->show();
}

TextBox* ControlFactory::entryBox(const QString& name, const TwipRect& place,
    const look::Font& font, const QString& accessibleName)
{
    auto* box = add(new TextBox(TextBox::Kind::Entry, m_canvas), name, place, font);
    box->setAccessibleName(accessibleName);
    return box;
}

TextBox* ControlFactory::displayBox(const QString& name, const TwipRect& place,
    const look::Font& font, const QString& accessibleName, const QString& text)
{
    auto* box = add(new TextBox(TextBox::Kind::Display, m_canvas), name, place, font);
    box->setAccessibleName(accessibleName);
    box->setText(text);
    return box;
}

TextBox* ControlFactory::countersBox(
    const QString& name, const TwipRect& place, const QString& text, const look::Font& font)
{
    TextBox* box = displayBox(name, place, font, u"Ejercicios y errores"_s, text);
    new QuietText(box);
    return box;
}

VerdictBox* ControlFactory::verdictBox(
    const QString& name, const TwipRect& place, const QString& accessibleName)
{
    auto* box = add(new VerdictBox(m_canvas), name, place, look::Verdict);
    box->setAccessibleName(accessibleName);
    return box;
}

Memo* ControlFactory::memo(const QString& name, const TwipRect& place, const look::Font& font,
    const QString& accessibleName)
{
    auto* box = add(new Memo(Memo::Kind::Entry, m_canvas), name, place, font);
    box->setAccessibleName(accessibleName);
    return box;
}

Memo* ControlFactory::displayMemo(const QString& name, const TwipRect& place,
    const look::Font& font, const QString& accessibleName, const QString& text)
{
    auto* box = add(new Memo(Memo::Kind::Display, m_canvas), name, place, font);
    box->setAccessibleName(accessibleName);
    box->setPlainText(text);
    return box;
}

Button* ControlFactory::button(const QString& name, const QString& caption, const TwipRect& place,
    const QColor& fill, const look::Font& font)
{
    return add(new Button(caption, fill, m_canvas), name, place, font);
}

QLabel* ControlFactory::label(const QString& name, const QString& caption, const TwipRect& place,
    const look::Font& font, QWidget* buddy)
{
    auto* label = add(new QLabel(m_canvas), name, place, font);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy); // first: readers keep the name that they are told with the caption
    label->setText(caption);
    return label;
}

} // namespace ui
