#include "shell/main_menu.h"

#include "core/numbers.h"

namespace shell {

MainMenuLayout::MainMenuLayout(core::Int16 buttons, core::Int16 clientHeight)
{
    const core::Int16 rows = buttons / 2 + buttons % 2;
    m_rowHeight = core::toInt16(static_cast<double>(clientHeight.value()) / rows.value());
    const auto rowHeight = static_cast<float>(m_rowHeight.value());
    for (int i = 0; i < buttons.value(); ++i) {
        const core::Int16 rowTop = core::Int16(i / 2) * m_rowHeight;
        m_places.push_back({.left = static_cast<double>(i % 2) * ButtonWidth + LeftMargin,
            .top = rowTop.value() + m_rowHeight.value() / 10.0,
            .width = ButtonWidth,
            .height = rowHeight * 0.8f});
    }
}

} // namespace shell
