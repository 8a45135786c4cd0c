#pragma once

#include "ui/placement.h"

#include <QStringList>

namespace ui {
class ControlFactory;
class ListBox;
} // namespace ui

namespace problems {

/// The editor's list: the lines of the bank and, behind them, the entry for a new one.
class BankList {
public:
    /// Makes the list with its caption in this place, in twips.
    BankList(ui::ControlFactory& controls, const ui::TwipRect& place);

    void fill(const QStringList& lines);

    /// Shows a line as an entry's; the new one makes room for the next.
    void write(int entry, const QString& line);
    void remove(int entry);

    void select(int entry);
    /// BankEditor::NoEntry where none is selected.
    int selected() const;
    void scrollToNewEntry();

    ui::ListBox* List1; ///< the list itself

private:
    int newEntry() const;
};

} // namespace problems
