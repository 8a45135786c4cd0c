#include "problems/template_form.h"

#include "ui/control_factory.h"

#include <QCheckBox>

#include <limits>

using namespace Qt::StringLiterals;

namespace problems {

namespace {

// In twips, from the top of the form.
constexpr double Gap = 120;
constexpr double GroupGap = 195; // before the caption of the next field
constexpr double BoxHeight = 510;
constexpr double CommandHeight = 510;
constexpr double StatementTop = TemplateForm::LabelStep;
constexpr double StatementHeight = 1740; // four lines
constexpr double StatementInserts = StatementTop + StatementHeight + Gap;
constexpr double AnswerTop =
    StatementInserts + CommandHeight + GroupGap + TemplateForm::LabelStep;
constexpr double AnswerInserts = AnswerTop + BoxHeight + Gap;
constexpr double UnitTop = AnswerInserts + CommandHeight + GroupGap + TemplateForm::LabelStep;
static_assert(UnitTop + BoxHeight == TemplateForm::Height);

constexpr ui::look::Font FieldFont{ui::look::Family::Andika, 15};

const QString InsertDatum = u"Insertar dato &variable"_s;
const QString InsertComputed = u"&Reinsertar dato variable"_s;

/// A pasted text may have several lines; a problem has one.
QString oneLine(QString text)
{
    text.replace(u"\r\n"_s, u" "_s);
    for (const char16_t lineBreak : {u'\n', u'\r', u'\u2028', u'\u2029'})
        text.replace(QChar(lineBreak), u' ');
    return text;
}

} // namespace

TemplateForm::TemplateForm(ui::ControlFactory& controls, QPointF corner, double width)
    : m_controls(controls)
    , m_left(corner.x())
    , m_top(corner.y())
    , m_width(width)
{
    makeStatement();
    makeAnswer();
    makeUnit();
    makeOperations();
}

void TemplateForm::makeStatement()
{
    Text1 = m_controls.memo(u"Text1"_s, {m_left, m_top + StatementTop, m_width, StatementHeight},
        FieldFont, u"Enunciado"_s);
    Text1->setToolTip(u"[2_9] es un dato al azar del 2 al 9; {&1*&2}, un valor calculado con "
                      "los datos 1 y 2. Un paréntesis siempre se calcula."_s);
    addLabel(1, u"&Enunciado"_s, StatementTop, m_width - FreeWidth, Text1);
    const QString target = u"en el enunciado"_s;
    const double top = m_top + StatementInserts;
    Command1 = insertCommand(1, InsertDatum, target, {m_left, top});
    Command2 = insertCommand(2, InsertComputed, target, {rightHalf(), top});
}

void TemplateForm::makeAnswer()
{
    Text2 = m_controls.entryBox(
        u"Text2"_s, {m_left, m_top + AnswerTop, m_width, BoxHeight}, FieldFont, u"Resultado"_s);
    Text2->setMaxLength(std::numeric_limits<int>::max()); // a line is shown whole
    Text2->setToolTip(
        u"Lo que ha de dar, casi siempre entre llaves: {&1*&2}. Un dato escrito aquí no se ve."_s);
    addLabel(2, u"&Resultado"_s, AnswerTop, m_width, Text2);
    const QString target = u"en el resultado"_s;
    const double top = m_top + AnswerInserts;
    Command3 = insertCommand(3, InsertDatum, target, {m_left, top});
    Command4 = insertCommand(4, InsertComputed, target, {rightHalf(), top});
}

void TemplateForm::makeUnit()
{
    Text3 = m_controls.entryBox(
        u"Text3"_s, {m_left, m_top + UnitTop, half(), BoxHeight}, FieldFont, u"Unidad"_s);
    Text3->setMaxLength(std::numeric_limits<int>::max());
    Text3->setToolTip(u"La palabra que sigue a la respuesta, como euros. Puede faltar."_s);
    addLabel(3, u"&Unidad"_s, UnitTop, half(), Text3);
}

void TemplateForm::makeOperations()
{
    const std::array captions{u"Mult"_s, u"Div"_s, u"Sum"_s, u"Rest"_s};
    const std::array names{u"Multiplicación"_s, u"División"_s, u"Suma"_s, u"Resta"_s};
    const double step = half() / static_cast<double>(CHOpera.size());
    double left = rightHalf();
    for (std::size_t k = 0; k < CHOpera.size(); ++k, left += step) {
        auto* box = m_controls.add(new QCheckBox(captions[k], m_controls.canvas()),
            u"CHOpera(%1)"_s.arg(k), {left, m_top + UnitTop, step, BoxHeight});
        box->setAccessibleName(names[k]);
        box->setToolTip(u"Marque en último lugar las operaciones que hace el alumno."_s);
        CHOpera[k] = box;
    }
}

// Two columns: what stands side by side ends where the boxes end.
double TemplateForm::half() const
{
    return (m_width - Gap) / 2;
}

double TemplateForm::rightHalf() const
{
    return m_left + half() + Gap;
}

void TemplateForm::addLabel(
    int number, const QString& caption, double top, double width, QWidget* box)
{
    m_controls.label(u"Label%1"_s.arg(number), caption,
        {m_left, m_top + top - LabelStep, width, LabelHeight}, ui::look::Instruction, box);
}

ui::Button* TemplateForm::insertCommand(
    int number, const QString& caption, const QString& target, QPointF corner)
{
    auto* command = m_controls.button(u"Command%1"_s.arg(number), caption,
        {corner.x(), corner.y(), half(), CommandHeight},
        ui::look::palette().color(QPalette::Button));
    command->setAccessibleName(QString(caption).remove(u'&') + u' ' + target);
    return command;
}

TemplateFields TemplateForm::fields() const
{
    // As raw text: the plain one would turn no-break spaces into blanks.
    TemplateFields typed{oneLine(Text1->document()->toRawText()), oneLine(Text2->text()),
        oneLine(Text3->text()), {}};
    for (std::size_t k = 0; k < CHOpera.size(); ++k)
        typed.operations[k] = CHOpera[k]->isChecked();
    return typed;
}

void TemplateForm::show(const TemplateFields& shown)
{
    Text1->setPlainText(shown.statement);
    Text2->setText(shown.answer);
    Text3->setText(shown.unit);
    showOperations(shown);
}

void TemplateForm::showOperations(const TemplateFields& shown)
{
    for (std::size_t k = 0; k < CHOpera.size(); ++k)
        CHOpera[k]->setChecked(shown.operations[k]);
}

void TemplateForm::empty()
{
    Text1->clear();
    Text2->clear();
    Text3->clear();
}

void TemplateForm::insertAtCaret(Target target, const QString& marker)
{
    if (target == Target::Statement) {
        QTextCursor caret = Text1->textCursor();
        caret.clearSelection();
        caret.insertText(marker);
        Text1->setTextCursor(caret);
        Text1->setFocus();
    } else {
        Text2->setCursorPosition(Text2->cursorPosition());
        Text2->insert(marker);
        Text2->setFocus();
    }
}

} // namespace problems
