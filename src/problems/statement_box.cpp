#include "problems/statement_box.h"

#include "ui/look.h"

#include <QTextBlockFormat>
#include <QTextDocument>

#include <array>
#include <memory>

namespace problems {

namespace {

constexpr std::array LetterSizes{28, 24, 21, 18}; // pixels at factor 1
constexpr double LineSpacing = 88; // per cent: the font's own is that of a primer
constexpr double TextMargin = 9; // pixels at factor 1

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
    fit();
}

void StatementBox::setFactor(double factor)
{
    Scalable::setFactor(factor);
    const int corner = qRound(ui::look::CornerMargin * factor);
    setViewportMargins(corner, corner, corner, corner);
    document()->setDocumentMargin(TextMargin * factor);
    fit();
}

void StatementBox::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    fit();
}

void StatementBox::fit()
{
    QFont font;
    bool whole = false;
    for (const int size : LetterSizes) {
        font = ui::look::scaled({ui::look::Family::Andika, size}, factor());
        whole = isSeenWhole(font);
        if (whole)
            break;
    }
    // A bar that is there takes room away, and so would stay where it is not needed.
    setVerticalScrollBarPolicy(whole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    setFont(font);
}

bool StatementBox::isSeenWhole(const QFont& font) const
{
    // The document that is shown would be laid out, and scrolled, at every try.
    const std::unique_ptr<QTextDocument> copy(document()->clone());
    copy->setDefaultFont(font);
    copy->setTextWidth(maximumViewportSize().width());
    return copy->size().height() <= maximumViewportSize().height();
}

} // namespace problems
