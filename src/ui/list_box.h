#pragma once

#include <QListWidget>

namespace ui {

/// A list of captions, with air between its lines. Whatever is clicked or reached by a key is
/// selected, and stays so: a Ctrl+click does not take the selection away.
class ListBox : public QListWidget {
public:
    explicit ListBox(QWidget* parent);

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex& index, const QEvent* event) const override;
};

} // namespace ui
