// pizarrin-banco: tells what is wrong with a problem bank, for whoever shares banks.
#include "core/bank_folder.h"
#include "core/random.h"
#include "core/system.h"
#include "problems/bank.h"
#include "problems/bank_check.h"
#include "problems/expression.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

enum ExitStatus { Clean, Faulty, NotChecked };

const QString Usage =
    u"Uso: pizarrin-banco [ARCHIVO]\n"
    "Revisa un banco de problemas; sin ARCHIVO, el Problemas3.dat que usa Pizarrin.\n"
    "Termina con 0 si no tiene faltas, con 1 si tiene alguna y con 2 si no se puede leer.\n"_s;

constexpr double Seed = 1; // the same bank gives the same report

ExitStatus check(const QString& path, QTextStream& out)
{
    core::SeededRandom random;
    random.seed(Seed);
    const problems::ExpressionEvaluator evaluator(u"VBScript"_s);
    const auto report = problems::checkBank(problems::readBankFile(path), random, evaluator);
    out << report.text;
    return report.faultyLines == 0 ? Clean : Faulty;
}

QString ownBank()
{
    const core::BankFolder folder(
        QCoreApplication::applicationDirPath() + u"/Recursos"_s, core::commonBankFolder());
    return folder.toRead() + u'/' + core::BankFile;
}

} // namespace

int main(int argc, char* argv[])
{
    // The toolkit's remarks, on the locale for one, are not for whoever shares banks.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QCoreApplication application(argc, argv);
    core::writeUtf8ToTerminal();
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList arguments = QCoreApplication::arguments().sliced(1);
    if (arguments == QStringList{u"--help"_s}) {
        out << Usage;
        return Clean;
    }
    if (arguments.size() > 1) {
        err << Usage;
        return NotChecked;
    }
    try {
        return check(arguments.value(0, ownBank()), out);
    } catch (const core::Error& error) {
        err << error.text() << '\n';
        return NotChecked;
    }
}
