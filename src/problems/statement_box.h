#pragma once

#include "ui/scaling.h"

#include <QTextEdit>

namespace problems {

/// Shows the statement of a problem in the largest letters in which all of it is seen at once:
/// 28, 24, 21 or 18 pixels at factor 1. A statement too long for all of them is scrolled. What
/// looks like mark-up in it is shown as it is written.
class StatementBox : public QTextEdit, public ui::Scalable {
public:
    explicit StatementBox(QWidget* parent);

    void setStatement(const QString& statement);
    void setFactor(double factor) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();
    bool isSeenWhole(const QFont& font) const;
};

} // namespace problems
