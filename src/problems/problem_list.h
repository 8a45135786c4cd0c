#pragma once

#include "ui/list_box.h"
#include "ui/placement.h"

namespace problems {

/// The list of the bank's problems: its many long lines stay clear of the round corners at
/// every factor.
class ProblemList : public ui::ListBox, public ui::Scalable {
public:
    explicit ProblemList(QWidget* parent);

    void setFactor(double factor) override;
};

} // namespace problems
