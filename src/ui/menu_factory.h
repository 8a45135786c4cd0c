#pragma once

#include "ui/look.h"
#include "ui/menu_list.h"

#include <QStringList>

class QMenu;
class QMenuBar;
class QWidget;

namespace ui {

/// Makes the menu bar of a window, with its first menu or item, and what is in it. A menu's own
/// action carries the menu's name. Picking an item never changes its check mark by itself: the
/// handler does.
class MenuFactory {
public:
    explicit MenuFactory(QWidget* window);
    MenuFactory(const MenuFactory&) = delete;
    MenuFactory& operator=(const MenuFactory&) = delete;

    QMenu* menu(const QString& name, const QString& caption);
    QMenu* submenu(QMenu* parent, const QString& name, const QString& caption);
    QAction* item(QMenu* parent, const QString& name, const QString& caption);
    /// An item that stands on the menu bar by itself.
    QAction* barItem(const QString& name, const QString& caption);
    QAction* checkItem(QMenu* parent, const QString& name, const QString& caption);
    /// Check items name(0), name(1) … with these captions; the first is checked.
    MenuList menuList(QMenu* parent, const QString& name, const QStringList& captions);
    /// Captions "&first" to "&last".
    static QStringList numberedCaptions(int first, int last);

    /// The type of the menus, in pixels at factor 1; the bar is as high as that needs. Screens
    /// that open at a large factor ask for less: so the menus are about as large on all.
    void setMenuType(int pixels);
    /// nullptr while there is none.
    QMenuBar* menuBar() const { return m_bar; }
    /// Of the menu bar, in pixels at factor 1; 0 while there is none.
    double menuBarHeight() const;
    void setMenuFactor(double factor);

private:
    QMenuBar* bar();
    QFont font() const;
    QMenu* named(QMenu* menu, const QString& name) const;
    static QAction* named(QAction* action, const QString& name);

    QWidget* m_window;
    QMenuBar* m_bar = nullptr;
    double m_factor = 1;
    int m_type = look::MenuType;
};

} // namespace ui
