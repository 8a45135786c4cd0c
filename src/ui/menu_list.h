#pragma once

#include "core/defect.h"

#include <QAction>

#include <vector>

namespace ui {

/// A list of menu items under one name with indexes from 0, of which one is checked.
class MenuList {
public:
    MenuList() = default;
    explicit MenuList(std::vector<QAction*> items)
        : m_items(std::move(items))
    {
    }

    int size() const { return static_cast<int>(m_items.size()); }
    QAction* at(int index) const { return core::at(m_items, index); }

    /// Unchecks every item and checks this one; an index outside the list checks none.
    void check(int index) const
    {
        for (int i = 0; i < size(); ++i)
            at(i)->setChecked(i == index);
    }

private:
    std::vector<QAction*> m_items;
};

} // namespace ui
