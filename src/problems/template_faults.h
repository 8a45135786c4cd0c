#pragma once

#include <QString>

#include <vector>

namespace problems {

struct TemplateFields;
struct WorkedOutText;

/// What can be wrong with a template.
enum class Fault {
    Unreadable, ///< a marker or a separator is missing or malformed
    MissingDatum, ///< an expression uses a datum that is not drawn, which is 0
    Rounded, ///< a value is not whole
    Negative, ///< a value or a datum is below 0
    NeverVaries, ///< every draw gives the same problem
    SingularBeforePlural, ///< "1 cajas"
    UnusedMark, ///< an operation is marked and not used
};

/// One fault, told in a Spanish sentence.
struct TemplateFault {
    Fault kind;
    QString text;

    bool operator==(const TemplateFault&) const = default;
};

/// What is wrong with the [...] and {...} of a template, whatever is drawn.
std::vector<TemplateFault> faultsOf(const TemplateFields& fields);

/// What is wrong with one draw of a template, in the order of Fault.
std::vector<TemplateFault> faultsOf(const WorkedOutText& worked);

/// "&1 = 7, &2 = 2": the data of a draw; empty without any.
QString dataText(const WorkedOutText& worked);

} // namespace problems
