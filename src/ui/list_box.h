#pragma once

#include "ui/scaling.h"

#include <QListWidget>

namespace ui {

/// A list of captions, with air between its lines, each cut off with an ellipsis where it is
/// too long and shown whole under the mouse. The lines stay clear of the round corners at every
/// factor. Whatever is clicked or reached by a key is selected, and stays so: a Ctrl+click does
/// not take the selection away.
class ListBox : public QListWidget, public Scalable {
public:
    /// Where the captions begin: a blank from the edge, or at it.
    enum class Start { Indented, Flush };

    explicit ListBox(QWidget* parent, Start start = Start::Indented);

    /// Makes the lines high enough for pictures (the icons of the items) before the captions;
    /// in pixels at factor 1.
    void setPictureSize(QSize size);

    /// Height of a line that needs so much for its caption, in pixels.
    int lineHeight(int caption) const;

    void setFactor(double factor) override;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex& index, const QEvent* event) const override;

private:
    QSize m_pictureSize; ///< empty where the list has none
};

} // namespace ui
