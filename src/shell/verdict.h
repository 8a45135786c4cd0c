#pragma once

#include <QString>

#include <optional>

namespace shell {

/// What a check found.
enum class Verdict {
    Right,
    Wrong,
    NotJudged ///< the answer cannot be judged, or there is none to judge: nothing counts
};

/// How a verdict in the same words as the one before differs from it, so that the pupil sees
/// that something has happened.
enum class Repeat {
    Unchanged,
    BlankInFront, ///< while any text stands in the line
    BlankBehind, ///< while exactly these words stand in the line
    Alternate ///< a blank in front of every other one
};

/// The line in which a drill tells its verdict.
class VerdictLine {
public:
    const QString& text() const { return m_text; }

    /// The verdict that the text tells; none for any other text.
    std::optional<Verdict> verdict() const { return m_verdict; }

    void tell(Verdict verdict, const QString& words, Repeat repeat = Repeat::Unchanged);

    /// Shows a text that is no verdict.
    void show(const QString& text);

    void clear() { show({}); }

private:
    QString repeated(const QString& words, Repeat repeat);

    QString m_text;
    std::optional<Verdict> m_verdict;
    bool m_blank = false; ///< what Alternate puts in front the next time
};

} // namespace shell
