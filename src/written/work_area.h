#pragma once

#include "ui/scaling.h"
#include "written/cell_grid.h"
#include "written/grid_caret.h"
#include "written/grid_text.h"

#include <QWidget>

namespace written {

/// A text box on squared paper: every character of a GridText stands in a cell of its own,
/// so that line r begins at character r × columns at every size. Typing, pasting and input
/// methods write over the cells and cannot move them; there is no deleting, dropping or
/// undoing. Draws no background: the paper lies behind it.
class WorkArea : public QWidget, public ui::Scalable {
    Q_OBJECT
    Q_PROPERTY(QString plainText READ toPlainText NOTIFY textChanged USER true)
    Q_PROPERTY(int cursorPosition READ cursorPosition WRITE setCursorPosition NOTIFY
            cursorPositionChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY cursorPositionChanged)

public:
    explicit WorkArea(QWidget* parent);

    const GridText& grid() const { return m_grid; }
    /// Replaces the text and takes the caret somewhere in it.
    void setGrid(const GridText& grid, int caret = 0);
    QString toPlainText() const { return m_grid.text(); }

    /// Where the first cell lies on the parent, in twips; all others line up with it. The
    /// type fits a cell.
    void setFirstCell(const ui::TwipRect& cell);
    void setFactor(double factor) override;

    int cursorPosition() const { return m_caret.position(); }
    void setCursorPosition(int position) { setSelection(position, position); }
    void setSelection(int anchor, int caret);
    int selectionStart() const { return m_caret.selectionStart(); }
    int selectionEnd() const { return m_caret.selectionEnd(); }
    QString selectedText() const;

    /// Writes over the cells from the caret, or the start of the selection, on. The caret
    /// stays there.
    void overtype(QChar typed) { overtypeText(typed); }
    void overtypeText(const QString& typed);

    void copy() const;
    void paste();

    /// Takes the focus, and the caret to the cell nearest to a point, of this control or beside
    /// it, that can be written over.
    void writeNear(const QPoint& point);

    /// The cell of a character, in pixels of this control.
    QRect cellRect(int position) const { return m_cells.rect(position); }
    /// The character whose cell lies at a point, or the nearest one.
    int positionAt(const QPoint& point) const { return m_cells.positionAt(point); }

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

signals:
    void textChanged();
    void cursorPositionChanged();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool edit(const QKeyEvent& event);
    void changed(const GridText& before, int from);
    void setCaret(const GridCaret& caret);
    bool isComposedAt(int position) const;
    void paintCell(QPainter& painter, int position) const;

    GridText m_grid;
    CellGrid m_cells{*this};
    GridCaret m_caret;
    QString m_composed; ///< what an input method is composing at the caret
};

} // namespace written
