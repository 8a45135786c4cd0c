#pragma once

#include "shell/verdict.h"

#include <concepts>

namespace shell {

/// The one shape of a drill's model: it draws an exercise, judges an answer of its own kind,
/// which also counts it and writes the verdict line, and gives the solution away. Every text
/// that depends on its state is its own. A drill that counts derives from Exercise.
template <typename Model>
concept Drill = requires(Model& model, const Model& seen, const typename Model::Answer& answer)
{
    model.newExercise();
    {
        model.judge(answer)
        } -> std::same_as<Verdict>;
    model.showSolution();
    {
        seen.verdict()
        } -> std::same_as<const VerdictLine&>;
};

} // namespace shell
