#pragma once

#include <QString>

#include <optional>

namespace written {

/// The text of a work area: one string read as consecutive lines of columns() characters,
/// without line breaks. The first line is the operation's and cannot be typed over; typing
/// replaces characters and never changes the length.
class GridText {
public:
    static constexpr int BlankRoom = 2000; ///< blanks after whatever is written

    GridText() = default;

    /// firstLine and blank room below it. columns must be 1 or more.
    GridText(const QString& firstLine, int columns);

    const QString& text() const { return m_text; }
    int columns() const { return m_columns; }
    int size() const { return static_cast<int>(m_text.size()); }

    /// The characters of line row, counted from 0; empty beyond the text.
    QString line(int row) const;

    /// Lines 0, 1, 2 … are taken while there is something on them; the last of these, without
    /// the blanks around it.
    QString lastWrittenLine() const;

    /// Writes texto from line fila, column columna on. Everything after it becomes blank.
    void EscribeLinea(const QString& texto, int fila, int columna);

    /// From its first character to behind its last one.
    struct Word {
        int start;
        int end;

        bool operator==(const Word& other) const = default;
    };
    /// What stands at position between two blanks; nothing at a blank and at the end.
    std::optional<Word> wordAt(int position) const;

    /// Whether a character typed at position takes its place there.
    bool isWritable(int position) const;

    /// Types one character over the one at position. Enter, Backspace, the full stop and
    /// whatever does not fill one cell become a blank. Says whether it could be typed.
    bool overtype(int position, QChar typed);

    /// Types a text over the characters from position on; a line break goes on in the column
    /// of position, one line lower. What does not fit at the end is dropped. Says whether
    /// position could be typed at.
    bool overtypeText(int position, const QString& typed);

    bool operator==(const GridText& other) const = default;

private:
    QString m_text;
    int m_columns = 1;
};

} // namespace written
