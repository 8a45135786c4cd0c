#pragma once

#include "ui/scaling.h"

#include <QTextEdit>

namespace problems {

/// Shows the statement of a problem, widely spaced, so that a child reads it with ease. What
/// looks like mark-up in it is shown as it is written.
class StatementBox : public QTextEdit, public ui::Scalable {
public:
    explicit StatementBox(QWidget* parent);

    void setStatement(const QString& statement);
    void setFactor(double factor) override;
};

} // namespace problems
