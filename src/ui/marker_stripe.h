#pragma once

#include "ui/underlay.h"

namespace ui {

class TextBox;

/// One continuous stripe behind the boxes of an operation whose texts are shown selected: a
/// marker on paper, an underline of chalk on a board. It is there while one of them is
/// selected, and reaches from the first such text to the last.
class MarkerStripe : public Underlay {
public:
    enum class Kind { Marker, Chalk };

    /// The boxes stand side by side on one canvas; their own highlight gives way.
    MarkerStripe(const std::vector<TextBox*>& boxes, Kind kind);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect placeOf(const QWidget& control) const override;
    QRect around(const QRect& covered) const override;

    Kind m_kind;
};

} // namespace ui
