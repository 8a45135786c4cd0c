#pragma once

#include <QStringList>

#include <array>

namespace core {
class RandomSource;
}

namespace problems {

class ExpressionEvaluator;

/// A line of the bank as the editor's boxes show it.
struct TemplateFields {
    QString statement;
    QString answer;
    QString unit;
    std::array<bool, 4> operations{}; ///< in the order of OperationSigns

    bool operator==(const TemplateFields&) const = default;
};

/// The fields of a line. Lenient: a line without separators is all statement.
TemplateFields splitLine(const QString& line);

/// The line of these fields, blanks around each of the texts left out.
QString joinLine(const TemplateFields& fields);

/// What is wrong with a statement that is being left; empty when nothing is.
QString statementFault(const TemplateFields& fields);

/// What is wrong with an answer that is being left; empty when nothing is.
QString answerFault(const TemplateFields& fields);

/// Marks those of three operations that the statement gives away, and clears the others.
void markFromStatement(TemplateFields& fields);

/// Marks the multiplication when the answer gives it away; clears nothing.
void markFromAnswer(TemplateFields& fields);

/// Whether an '&' is followed by a blank, which no marker allows.
bool hasLooseAmpersand(QStringView text);

/// What "&Probar " shows.
struct TryOut {
    QString text; ///< the fields with their markers replaced
    QString notes; ///< what is wrong with this draw, and its data; empty when nothing is
};

/// Works the fields out with fresh data. Throws TemplateError.
TryOut tryOut(const TemplateFields& fields, core::RandomSource& random,
    const ExpressionEvaluator& evaluator);

/// What "|" in a field is answered with.
QString separatorRefusal();

/// The editor's own copy of the bank. Its entries are the lines, then one for a new line.
class BankEditor {
public:
    static constexpr int NoEntry = -1;

    void load(const QStringList& lines) { m_lines = lines; }

    const QStringList& lines() const { return m_lines; }
    int newEntry() const { return static_cast<int>(m_lines.size()); }
    bool isLine(int entry) const { return entry >= 0 && entry < newEntry(); }
    const QString& line(int entry) const { return m_lines.at(entry); }

    /// The fields of an entry that has a line, which the boxes are about to show.
    TemplateFields show(int entry);

    /// Whether the boxes, holding these fields, have a text that has been neither shown nor
    /// stored: it is lost unless it is stored.
    bool isUnsaved(const TemplateFields& fields) const;

    /// Why these fields cannot be stored; empty when they can.
    static QString refusal(const TemplateFields& fields);

    /// Stores the fields as the entry's line, with no entry as the first one, and returns
    /// the entry that it became.
    int store(int entry, const TemplateFields& fields);

    /// Takes the entry's line out; nothing for an entry that has none.
    void remove(int entry);

private:
    QStringList m_lines;
    QString m_saved; ///< the line that was shown or stored last
};

} // namespace problems
