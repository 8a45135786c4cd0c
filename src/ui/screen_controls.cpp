#include "ui/screen.h"

#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace ui {

void Screen::addControl(
    QWidget* control, const QString& name, const TwipRect& place, const look::Font& font)
{
    control->setObjectName(name);
    const auto& entry = m_controls[control] = {place, font};
    connect(control, &QObject::destroyed, this, [this, control] { m_controls.erase(control); });
    applyPlace(control, entry);
    if (isVisible())
        control->show();
}

TwipRect Screen::placeOf(const QWidget* control) const
{
    return m_controls.at(control).place;
}

void Screen::place(QWidget* control, const TwipRect& place)
{
    Control& entry = m_controls.at(control);
    entry.place = place;
    control->setGeometry(toPixels(place, m_factor));
}

void Screen::moveTo(QWidget* control, double left, double top)
{
    TwipRect moved = placeOf(control);
    moved.left = left;
    moved.top = top;
    place(control, moved);
}

void Screen::setControlFont(QWidget* control, const look::Font& font)
{
    Control& entry = m_controls.at(control);
    entry.font = font;
    applyPlace(control, entry);
}

TextBox* Screen::entryBox(const QString& name, const TwipRect& place, const look::Font& font,
    const QString& accessibleName)
{
    auto* box = add(new TextBox(TextBox::Kind::Entry, m_canvas), name, place, font);
    box->setAccessibleName(accessibleName);
    return box;
}

TextBox* Screen::displayBox(const QString& name, const TwipRect& place, const look::Font& font,
    const QString& accessibleName, const QString& text)
{
    auto* box = add(new TextBox(TextBox::Kind::Display, m_canvas), name, place, font);
    box->setAccessibleName(accessibleName);
    box->setText(text);
    return box;
}

VerdictBox* Screen::verdictBox(
    const QString& name, const TwipRect& place, const QString& accessibleName)
{
    auto* box = add(new VerdictBox(m_canvas), name, place, look::Verdict);
    box->setAccessibleName(accessibleName);
    return box;
}

Memo* Screen::memo(const QString& name, const TwipRect& place, const look::Font& font,
    const QString& accessibleName)
{
    auto* box = add(new Memo(Memo::Kind::Entry, m_canvas), name, place, font);
    box->setAccessibleName(accessibleName);
    return box;
}

Memo* Screen::displayMemo(const QString& name, const TwipRect& place, const look::Font& font,
    const QString& accessibleName, const QString& text)
{
    auto* box = add(new Memo(Memo::Kind::Display, m_canvas), name, place, font);
    box->setAccessibleName(accessibleName);
    box->setPlainText(text);
    return box;
}

Button* Screen::button(const QString& name, const QString& caption, const TwipRect& place,
    const QColor& fill, const look::Font& font)
{
    return add(new Button(caption, fill, m_canvas), name, place, font);
}

QLabel* Screen::label(const QString& name, const QString& caption, const TwipRect& place,
    const look::Font& font, QWidget* buddy)
{
    auto* label = add(new QLabel(m_canvas), name, place, font);
    label->setTextFormat(Qt::PlainText);
    label->setText(caption);
    label->setBuddy(buddy);
    return label;
}

QTimer* Screen::timer(const QString& name, int milliseconds)
{
    auto* timer = new QTimer(this);
    timer->setObjectName(name);
    timer->setInterval(milliseconds);
    return timer;
}

// --- menus

QMenuBar* Screen::menuBar()
{
    if (m_menuBar == nullptr) {
        m_menuBar = new QMenuBar(this);
        m_menuBar->setNativeMenuBar(false);
        m_menuBar->setFont(look::scaled(look::Instruction, m_factor));
    }
    return m_menuBar;
}

template <> QMenu* Screen::named(QMenu* menu, const QString& name)
{
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    menu->setFont(look::scaled(look::Instruction, m_factor));
    return menu;
}

template <> QAction* Screen::named(QAction* action, const QString& name)
{
    action->setObjectName(name);
    return action;
}

QMenu* Screen::menu(const QString& name, const QString& caption)
{
    return named(menuBar()->addMenu(caption), name);
}

QMenu* Screen::submenu(QMenu* parent, const QString& name, const QString& caption)
{
    return named(parent->addMenu(caption), name);
}

QAction* Screen::item(QMenu* parent, const QString& name, const QString& caption)
{
    return named(parent->addAction(caption), name);
}

QAction* Screen::barItem(const QString& name, const QString& caption)
{
    return named(menuBar()->addAction(caption), name);
}

QAction* Screen::checkItem(QMenu* parent, const QString& name, const QString& caption)
{
    QAction* action = item(parent, name, caption);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this,
        [action](bool checked) { action->setChecked(!checked); });
    return action;
}

MenuList Screen::menuList(QMenu* parent, const QString& name, const QStringList& captions)
{
    std::vector<QAction*> items;
    for (qsizetype i = 0; i < captions.size(); ++i)
        items.push_back(checkItem(parent, u"%1(%2)"_s.arg(name).arg(i), captions.at(i)));
    MenuList list(std::move(items));
    list.check(0);
    return list;
}

QStringList Screen::numberedCaptions(int first, int last)
{
    QStringList captions;
    for (int number = first; number <= last; ++number)
        captions << u"&%1"_s.arg(number);
    return captions;
}

} // namespace ui
