#pragma once

#include "ui/style.h"

/// The program's style with nothing moving: controls are at their places at once.
class StillStyle final : public ui::Style {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* returnData) const override
    {
        if (hint == SH_Widget_Animation_Duration)
            return 0;
        return ui::Style::styleHint(hint, option, widget, returnData);
    }
};
