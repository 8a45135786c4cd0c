#pragma once

#include "core/int16.h"

#include <vector>

namespace shell {

/// Where the buttons of the main menu stand, in twips.
class MainMenuLayout {
public:
    static constexpr int ButtonWidth = 5000;
    static constexpr int LeftMargin = 500;

    struct Place {
        double left = 0;
        double top = 0;
        double width = 0;
        double height = 0;
    };

    /// Two columns, read left to right and top to bottom, for a number of buttons and the
    /// client height. Throws core::OverflowError where a top would leave 16 bits.
    MainMenuLayout(core::Int16 buttons, core::Int16 clientHeight);

    core::Int16 rowHeight() const { return m_rowHeight; }
    const std::vector<Place>& places() const { return m_places; }

private:
    core::Int16 m_rowHeight;
    std::vector<Place> m_places;
};

} // namespace shell
