#pragma once

#include "ui/placement.h"

#include <QListWidget>

namespace problems {

/// A list of many long lines, each cut off with an ellipsis. Whatever is clicked or reached
/// by a key is selected, and stays so: a Ctrl+click does not take the selection away.
class ProblemList : public QListWidget, public ui::Scalable {
public:
    explicit ProblemList(QWidget* parent);

    void setFactor(double factor) override;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex& index, const QEvent* event) const override;
};

} // namespace problems
