#include "ui/menu_factory.h"

#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include <cmath>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr double BarToType = 1.0 * look::MenuBarHeight / look::MenuType;

} // namespace

MenuFactory::MenuFactory(QWidget* window)
    : m_window(window)
{
}

double MenuFactory::menuBarHeight() const
{
    return m_bar != nullptr ? std::round(BarToType * m_type) : 0;
}

void MenuFactory::setMenuType(int pixels)
{
    m_type = pixels;
    setMenuFactor(m_factor);
}

QFont MenuFactory::font() const
{
    return look::scaled({look::Family::Andika, m_type}, m_factor);
}

void MenuFactory::setMenuFactor(double factor)
{
    m_factor = factor;
    if (m_bar == nullptr)
        return;
    m_bar->setFont(font());
    for (QMenu* menu : m_bar->findChildren<QMenu*>())
        menu->setFont(font());
}

QMenuBar* MenuFactory::bar()
{
    if (m_bar == nullptr) {
        m_bar = new QMenuBar(m_window);
        m_bar->setFont(font());
        // The Alt key alone leads there too, but not beside a screen reader.
        auto* turnTo = new QShortcut(Qt::Key_F10, m_window);
        QObject::connect(turnTo, &QShortcut::activated, m_bar, [bar = m_bar] {
            bar->setFocus(Qt::MenuBarFocusReason);
            bar->setActiveAction(bar->actions().constFirst());
        });
    }
    return m_bar;
}

QMenu* MenuFactory::named(QMenu* menu, const QString& name) const
{
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    menu->setFont(font());
    return menu;
}

QAction* MenuFactory::named(QAction* action, const QString& name)
{
    action->setObjectName(name);
    return action;
}

QMenu* MenuFactory::menu(const QString& name, const QString& caption)
{
    return named(bar()->addMenu(caption), name);
}

QMenu* MenuFactory::submenu(QMenu* parent, const QString& name, const QString& caption)
{
    return named(parent->addMenu(caption), name);
}

QAction* MenuFactory::item(QMenu* parent, const QString& name, const QString& caption)
{
    return named(parent->addAction(caption), name);
}

QAction* MenuFactory::barItem(const QString& name, const QString& caption)
{
    return named(bar()->addAction(caption), name);
}

QAction* MenuFactory::checkItem(QMenu* parent, const QString& name, const QString& caption)
{
    QAction* action = item(parent, name, caption);
    action->setCheckable(true);
    QObject::connect(action, &QAction::triggered, action,
        [action](bool checked) { action->setChecked(!checked); });
    return action;
}

MenuList MenuFactory::menuList(QMenu* parent, const QString& name, const QStringList& captions)
{
    std::vector<QAction*> items;
    for (qsizetype i = 0; i < captions.size(); ++i)
        items.push_back(checkItem(parent, u"%1(%2)"_s.arg(name).arg(i), captions.at(i)));
    MenuList list(std::move(items));
    list.check(0);
    return list;
}

QStringList MenuFactory::numberedCaptions(int first, int last)
{
    QStringList captions;
    for (int number = first; number <= last; ++number)
        captions << u"&%1"_s.arg(number);
    return captions;
}

} // namespace ui
