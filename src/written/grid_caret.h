#pragma once

#include <algorithm>

class QKeyEvent;

namespace written {

/// The caret in a text whose lines are equally long, and the selection between it and its
/// anchor. It may stand on every character and behind the last one.
class GridCaret {
public:
    int position() const { return m_position; }
    int anchor() const { return m_anchor; }
    bool hasSelection() const { return m_anchor != m_position; }
    int selectionStart() const { return std::min(m_anchor, m_position); }
    int selectionEnd() const { return std::max(m_anchor, m_position); }
    bool selects(int position) const
    {
        return position >= selectionStart() && position < selectionEnd();
    }

    /// The text that it stands in: its characters, and the characters of a line.
    void setText(int columns, int size);

    bool operator==(const GridCaret& other) const = default;

    /// Takes anchor and caret to the nearest places in the text.
    void select(int anchor, int position);

    /// Moves, or selects, as a key asks; pageRows are the lines of a page. Says whether the key
    /// is one of the caret's.
    bool press(const QKeyEvent& event, int pageRows);

private:
    int lines(int rows) const;

    int m_columns = 1;
    int m_size = 0;
    int m_anchor = 0;
    int m_position = 0;
};

} // namespace written
