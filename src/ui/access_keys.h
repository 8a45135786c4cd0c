#pragma once

#include <QObject>

class QWidget;

namespace ui {

/// When the access keys of captions are underlined: while Alt is held, and in a menu that was
/// opened or reached by the keyboard.
class AccessKeys : public QObject {
public:
    explicit AccessKeys(QObject* parent);

    bool areShown(const QWidget* widget) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHeld(bool held);

    bool m_held = false;
    bool m_keyboardLast = false; ///< the last press was that of a key
};

} // namespace ui
