#pragma once

#include <QWidget>

namespace written {

/// The cross beside a row that is wrong, so that its colour is not all that tells it.
class WrongMark : public QWidget {
    Q_OBJECT

public:
    explicit WrongMark(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace written
