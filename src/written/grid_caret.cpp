#include "written/grid_caret.h"

#include <QKeyEvent>

#include <array>

namespace written {

namespace {

using Key = QKeySequence;

/// The keys that take the caret to a position, without and with a selection.
struct Move {
    Key::StandardKey move;
    Key::StandardKey select;
    int target;
};

} // namespace

void GridCaret::setText(int columns, int size)
{
    m_columns = columns;
    m_size = size;
    select(m_anchor, m_position);
}

void GridCaret::select(int anchor, int position)
{
    m_anchor = std::clamp(anchor, 0, m_size);
    m_position = std::clamp(position, 0, m_size);
}

bool GridCaret::press(const QKeyEvent& event, int pageRows)
{
    const int lineStart = m_position - m_position % m_columns;
    const std::array moves{
        Move{Key::MoveToPreviousChar, Key::SelectPreviousChar, m_position - 1},
        Move{Key::MoveToNextChar, Key::SelectNextChar, m_position + 1},
        Move{Key::MoveToPreviousLine, Key::SelectPreviousLine, lines(-1)},
        Move{Key::MoveToNextLine, Key::SelectNextLine, lines(1)},
        Move{Key::MoveToPreviousPage, Key::SelectPreviousPage, lines(-pageRows)},
        Move{Key::MoveToNextPage, Key::SelectNextPage, lines(pageRows)},
        Move{Key::MoveToStartOfLine, Key::SelectStartOfLine, lineStart},
        Move{Key::MoveToEndOfLine, Key::SelectEndOfLine, lineStart + m_columns - 1},
        Move{Key::MoveToStartOfDocument, Key::SelectStartOfDocument, 0},
        Move{Key::MoveToEndOfDocument, Key::SelectEndOfDocument, m_size},
    };
    for (const auto& [moving, selecting, target] : moves) {
        if (event.matches(moving) || event.matches(selecting)) {
            select(event.matches(selecting) ? m_anchor : target, target);
            return true;
        }
    }
    return false;
}

/// So many lines on in the same column; where the text ends before, the caret stays.
int GridCaret::lines(int rows) const
{
    const int target = m_position + rows * m_columns;
    return target < 0 || target > m_size ? m_position : target;
}

} // namespace written
