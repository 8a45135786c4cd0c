#pragma once

#include <QMessageBox>

namespace ui {

/// The largest width of a box over a window, in pixels: a share of the display's.
int largestBoxWidth(const QWidget& window);

/// The window of a message box: as wide as its text asks for, up to a measure that grows with the
/// factor, and in letters in which all of it is seen at once. One that asks a question is left
/// only by one of its buttons: a stray Escape must not answer "No".
class MessageWindow final : public QMessageBox {
public:
    enum class Kind { Report, Question };

    MessageWindow(Kind kind, QWidget* parent);

    /// A text and, below it, notes on it, both shown as they are written, at the factor of a
    /// window.
    void setTexts(const QString& text, const QString& notes, const QWidget& window);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void addNotes(const QString& notes);
    void widen(const QWidget& window);
    void holdText();
    void keepTextClear();
    void dropIconGap();

    Kind m_kind;
    bool m_isWide = false; ///< wider than the toolkit makes a box
};

} // namespace ui
