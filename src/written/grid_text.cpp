#include "written/grid_text.h"

using namespace Qt::StringLiterals;

namespace written {

namespace {

constexpr QChar Blank = u' ';

QString blanks(int count)
{
    return {count, Blank};
}

QChar cellCharacter(QChar typed)
{
    const bool fillsACell = typed.isPrint() && !typed.isMark() && !typed.isSurrogate();
    return fillsACell && !typed.isSpace() && typed != u'.' ? typed : Blank;
}

} // namespace

GridText::GridText(const QString& firstLine, int columns)
    : m_text(firstLine + blanks(BlankRoom))
    , m_columns(columns)
{
    Q_ASSERT(columns > 0);
}

QString GridText::line(int row) const
{
    return m_text.mid(qsizetype{row} * m_columns, m_columns);
}

QString GridText::lastWrittenLine() const
{
    QString last;
    for (int row = 0;; ++row) {
        const QString written = line(row).trimmed();
        if (written.isEmpty())
            return last;
        last = written;
    }
}

void GridText::EscribeLinea(const QString& texto, int fila, int columna)
{
    const int start = fila * m_columns + columna;
    m_text = m_text.left(start).leftJustified(start, Blank) + texto + blanks(BlankRoom);
}

std::optional<GridText::Word> GridText::wordAt(int position) const
{
    if (position >= size() || m_text.at(position) == u' ')
        return std::nullopt;
    const auto start = static_cast<int>(m_text.lastIndexOf(u' ', position)) + 1;
    const auto end = static_cast<int>(m_text.indexOf(u' ', position));
    return Word{start, end == -1 ? size() : end};
}

bool GridText::isWritable(int position) const
{
    return position >= m_columns && position < size();
}

bool GridText::overtype(int position, QChar typed)
{
    if (!isWritable(position))
        return false;
    m_text[position] = cellCharacter(typed);
    return true;
}

bool GridText::overtypeText(int position, const QString& typed)
{
    QString text = typed.normalized(QString::NormalizationForm_C);
    text.replace(u"\r\n"_s, u"\n"_s);
    int lineStart = position;
    int at = position;
    for (const QChar character : std::as_const(text)) {
        if (character == u'\n' || character == u'\r' || character == QChar::ParagraphSeparator) {
            lineStart += m_columns;
            at = lineStart;
        } else if (!overtype(at++, character)) {
            break;
        }
    }
    return isWritable(position);
}

} // namespace written
