#include "gallery.h"
#include "pictures.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

const QString Form = u"FrmMultidivi"_s;

/// Goes on until the instruction speaks of multiples, or of divisors.
void goOnTo(const gallery::Stage& stage, const QString& kind)
{
    const auto& instruction = stage.control<QPlainTextEdit>(u"Text1"_s);
    while (!instruction.toPlainText().contains(kind))
        stage.click(u"Command2(0)"_s);
}

void typeAnswers(gallery::Stage& stage, const QStringList& answers)
{
    for (qsizetype i = 0; i < answers.size(); ++i)
        stage.type(u"Text3(%1)"_s.arg(i), answers.at(i));
}

} // namespace

void gallery::addMultiplesDivisors(Gallery& gallery)
{
    const QString multiples = u"múltiplos"_s;
    const QString divisors = u"divisores"_s;
    gallery.add(u"multiplos"_s, Form, [=](Stage& stage) { goOnTo(stage, multiples); });
    gallery.add(u"multiplos-bien"_s, Form, [=](Stage& stage) {
        const auto first = [=](Stage& on) { goOnTo(on, multiples); };
        const QStringList solution =
            stage.solution(first, {u"Text3(0)"_s, u"Text3(1)"_s, u"Text3(2)"_s});
        first(stage);
        typeAnswers(stage, solution);
        stage.click(u"Command1"_s);
    });
    gallery.add(u"divisores"_s, Form, [=](Stage& stage) { goOnTo(stage, divisors); });
    gallery.add(u"divisores-mal"_s, Form, [=](Stage& stage) {
        goOnTo(stage, divisors);
        typeAnswers(stage, {u"2"_s, u"2"_s, u"3"_s});
        stage.click(u"Command1"_s);
    });
    gallery.add(u"divisores-continuar"_s, Form, [=](Stage& stage) {
        goOnTo(stage, divisors);
        typeAnswers(stage, {u"1"_s, u"1"_s, u"1"_s});
        stage.click(u"Command1"_s);
        stage.click(u"Command2(0)"_s);
        goOnTo(stage, divisors);
    });
    gallery.add(u"multiplos-error"_s, Form, [=](Stage& stage) {
        stage.photographBox([&] { stage.click(u"Command1"_s); }, u"Aceptar"_s);
    });
}
