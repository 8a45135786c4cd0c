#include "shell/exercise_screen.h"

#include "core/defect.h"
#include "ui/tray.h"

using namespace Qt::StringLiterals;

namespace shell {

void showVerdict(ui::VerdictBox& box, const VerdictLine& line)
{
    using Mark = ui::VerdictBox::Mark;
    const auto verdict = line.verdict();
    const Mark mark = verdict == Verdict::Right ? Mark::Right
        : verdict == Verdict::Wrong             ? Mark::Wrong
                                                : Mark::None;
    box.setVerdict(line.text(), mark);
}

QString ExerciseScreen::defaultSolutionCaption()
{
    return u"&Ver solución"_s;
}

ExerciseScreen::CommandPlaces ExerciseScreen::inOrder(ui::TwipRect (*placeOf)(int position))
{
    return {.check = placeOf(0), .next = placeOf(2), .clear = placeOf(1), .solution = placeOf(3)};
}

void ExerciseScreen::makeCommands(const CommandPlaces& places, const QString& solutionCaption)
{
    Command1 = button(u"Command1"_s, u"&Hecho"_s, places.check, ui::look::Yellow);
    on(Command1, &QPushButton::clicked, &ExerciseScreen::Command1_Click);

    Command2 = {button(u"Command2(0)"_s, u"&Continuar"_s, places.next, ui::look::Cyan),
        button(u"Command2(1)"_s, u"&Borrar"_s, places.clear, ui::look::Green),
        button(u"Command2(2)"_s, solutionCaption, places.solution, ui::look::Red)};
    for (int i = 0; i < 3; ++i)
        on(core::at(Command2, i), &QPushButton::clicked, &ExerciseScreen::Command2_Click, i);
    new ui::Tray({Command1, Command2[0], Command2[1], Command2[2]});
    const auto inReadingOrder = [](const ui::TwipRect& place) {
        return std::pair(place.top, place.left);
    };
    if (inReadingOrder(places.clear) < inReadingOrder(places.next))
        setTabOrder(Command2[1], Command2[0]);
}

void ExerciseScreen::Command1_Click()
{
    check();
}

void ExerciseScreen::Command2_Click(int Index)
{
    switch (Index) {
    case 0:
        nextExercise();
        break;
    case 1:
        clearAnswer();
        break;
    default:
        showSolution();
        break;
    }
}

void ExerciseScreen::enterChecks(QWidget* answerBox)
{
    onEnter(answerBox, [this] { Command1_Click(); });
}

void ExerciseScreen::leaveContinue(QWidget* work)
{
    if (focusWidget() == Command2[0]) // behind a box that has just closed it has no keyboard yet
        work->setFocus();
}

bool ExerciseScreen::askToRepeat()
{
    return ui::MessageBox::ask(*this,
        u"La actividad está terminada. Si deseas repetirla pulsa en sí, en caso contrario "
        "pulsa No y entra en el menú opciones para elegir una actividad nueva"_s,
        u"Actividad terminada"_s);
}

} // namespace shell
