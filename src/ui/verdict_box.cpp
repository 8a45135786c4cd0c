#include "ui/verdict_box.h"

#include "ui/announcement.h"
#include "ui/ground.h"
#include "ui/look.h"
#include "ui/marks.h"
#include "ui/quiet_text.h"

#include <QPainter>

#include <algorithm>

namespace ui {

namespace {

constexpr double MarkGap = 8; // pixels at factor 1
constexpr double StarToDisc = 0.78;

Pose poseFor(VerdictBox::Mark mark)
{
    switch (mark) {
    case VerdictBox::Mark::Right:
        return Pose::Pleased;
    case VerdictBox::Mark::Wrong:
        return Pose::Thinking;
    case VerdictBox::Mark::None:
        break;
    }
    return Pose::Waiting;
}

} // namespace

VerdictBox::VerdictBox(QWidget* parent)
    : TextBox(Kind::Display, parent)
    , m_quiet(new QuietText(this, false))
{
    makeRoom();
}

void VerdictBox::setJudged(const std::vector<TextBox*>& answers)
{
    m_judged.assign(answers.begin(), answers.end());
    for (TextBox* answer : answers)
        connect(answer, &QLineEdit::textEdited, answer, [answer] { answer->setEdge({}); });
}

void VerdictBox::setMarkSize(double pixels)
{
    m_markSize = pixels;
    makeRoom();
}

void VerdictBox::setFactor(double factor)
{
    TextBox::setFactor(factor);
    makeRoom();
}

void VerdictBox::resizeEvent(QResizeEvent* event)
{
    TextBox::resizeEvent(event);
    makeRoom();
}

double VerdictBox::discSize() const
{
    return std::min(m_markSize * factor(), static_cast<double>(height()));
}

void VerdictBox::makeRoom()
{
    setExtraMargins(discSize() / factor() + MarkGap, 0);
}

void VerdictBox::setVerdict(const QString& text, Mark mark)
{
    change(text, mark);
    if (!text.isEmpty())
        announce(*this, text);
}

void VerdictBox::change(const QString& text, Mark mark)
{
    m_mark = mark;
    m_quiet->setQuiet(false);
    setText(text);
    edgeJudged();
    Ground::pose(*this, poseFor(mark));
    update();
}

void VerdictBox::retire()
{
    m_mark = Mark::None;
    edgeJudged();
    Ground::pose(*this, Pose::Waiting);
    m_quiet->setQuiet(true);
    update();
}

void VerdictBox::edgeJudged()
{
    std::optional<QColor> edge;
    if (m_mark != Mark::None)
        edge = QColor(m_mark == Mark::Right ? look::Right : look::Wrong);
    for (const QPointer<TextBox>& answer : m_judged) {
        if (answer)
            answer->setEdge(edge);
    }
}

void VerdictBox::paintEvent(QPaintEvent* event)
{
    TextBox::paintEvent(event);
    if (m_mark == Mark::None || text().isEmpty())
        return;
    const double size = discSize();
    const QRectF square(0, (height() - size) / 2, size, size);
    QPainter painter(this);
    if (m_mark == Mark::Wrong) {
        drawWrongDisc(painter, square);
        return;
    }
    drawRightDisc(painter, square);
    drawStarBehindText(painter);
}

void VerdictBox::drawStarBehindText(QPainter& painter) const
{
    const double size = StarToDisc * discSize();
    const double end =
        textMargins().left() + fontMetrics().horizontalAdvance(text()) + MarkGap * factor();
    if (!(alignment() & Qt::AlignHCenter) && end + size <= width())
        drawStar(painter, {end, (height() - size) / 2, size, size});
}

} // namespace ui
