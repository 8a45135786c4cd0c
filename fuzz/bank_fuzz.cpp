#include "core/errors.h"
#include "core/random.h"
#include "problems/bank.h"
#include "problems/bank_editor.h"
#include "problems/expression.h"
#include "problems/problem_template.h"
#include "problems/template_faults.h"
#include "problems/used_operations.h"
#include "problems/windows1252.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;

// Whatever bytes stand in the bank file: it is read whole, every line of it either becomes a
// problem or is refused with a text, and nothing of it changes on its way back to bytes.

namespace {

void require(bool held)
{
    if (!held)
        std::abort();
}

QByteArray written(const QString& line)
{
    QByteArray bytes;
    require(!problems::appendWindows1252(bytes, line).has_value());
    return bytes;
}

void checkLine(const QString& line, QByteArrayView file)
{
    require(!line.isEmpty() && !line.contains(u'\n') && !line.contains(u'\r'));
    require(file.indexOf(written(line)) >= 0);
    const QString again = problems::joinLine(problems::splitLine(line));
    require(problems::joinLine(problems::splitLine(again)) == again);
    for (const auto& fault : problems::faultsOf(problems::splitLine(line)))
        require(!fault.text.isEmpty());
    require(problems::usedOperations(line) < 16);
}

void instantiate(const QString& line)
{
    static const problems::ExpressionEvaluator evaluator(u"VBScript"_s);
    core::SeededRandom random;
    random.seed(static_cast<double>(line.size()));
    try {
        const auto problem = problems::InstanciarProblema(line, random, evaluator);
        require(problem.operations == problems::CampoOperaciones(line));
        for (const qint32 value : problem.data)
            require(std::int16_t(value) == value);
    } catch (const core::Error& error) {
        require(!error.text().isEmpty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir folder;
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    QFile file(folder.filePath(u"Problemas3.dat"_s));
    require(file.open(QIODevice::WriteOnly)
        && file.write(bytes.data(), bytes.size()) == bytes.size());
    file.close();
    const auto bank = problems::LeerBanco(folder.path());
    require(bank && bank->used.size() == static_cast<std::size_t>(bank->lines.size()));
    for (const QString& line : bank->lines) {
        checkLine(line, bytes);
        instantiate(line);
    }
    return 0;
}
