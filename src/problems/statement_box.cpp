#include "problems/statement_box.h"

#include "ui/look.h"

#include <QTextBlockFormat>
#include <QTextDocument>

namespace problems {

namespace {

constexpr double LineSpacing = 140; // per cent
constexpr double TextMargin = 12; // pixels at factor 1

} // namespace

StatementBox::StatementBox(QWidget* parent)
    : QTextEdit(parent)
{
    setReadOnly(true);
    setTabChangesFocus(true);
}

void StatementBox::setStatement(const QString& statement)
{
    setPlainText(statement);
    QTextBlockFormat spaced;
    spaced.setLineHeight(LineSpacing, QTextBlockFormat::ProportionalHeight);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(spaced);
}

void StatementBox::setFactor(double factor)
{
    const int corner = qRound(ui::look::CornerMargin * factor);
    setViewportMargins(corner, corner, corner, corner);
    document()->setDocumentMargin(TextMargin * factor);
}

} // namespace problems
