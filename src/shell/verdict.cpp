#include "shell/verdict.h"

#include <utility>

namespace shell {

void VerdictLine::tell(Verdict verdict, const QString& words, Repeat repeat)
{
    m_text = repeated(words, repeat);
    m_verdict = verdict;
}

void VerdictLine::show(const QString& text)
{
    m_text = text;
    m_verdict.reset();
}

QString VerdictLine::repeated(const QString& words, Repeat repeat)
{
    switch (repeat) {
    case Repeat::Unchanged:
        break;
    case Repeat::BlankInFront:
        return m_text.isEmpty() ? words : u' ' + words;
    case Repeat::BlankBehind:
        return m_text == words ? words + u' ' : words;
    case Repeat::Alternate:
        return std::exchange(m_blank, !m_blank) ? u' ' + words : words;
    }
    return words;
}

} // namespace shell
