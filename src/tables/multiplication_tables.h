#pragma once

#include "core/int16.h"
#include "shell/verdict.h"

#include <QString>

#include <array>

namespace core {
class RandomSource;
}

namespace tables {

/// The rules of the multiplication tables: ten tables to study, or to review in a series of
/// ten questions, in order or shuffled. Shows nothing; the screen asks what the pupil is
/// asked about.
class MultiplicationTables {
public:
    /// The product, read as a number.
    using Answer = double;

    static constexpr int Tables = 10;
    static constexpr int Activities = 3;
    enum Activity { ViewTable, ReviewInOrder, ReviewShuffled };

    /// random must outlive the model.
    explicit MultiplicationTables(core::RandomSource& random);

    /// The table number behind a menu item, 0 to 9.
    int tableAt(int index) const;
    int table() const { return tableAt(TablaActual.value()); }

    int currentActivity() const { return ActividadActual.value(); } ///< an Activity
    int nextTable() const; ///< menu index behind the current one, back to 0
    int nextActivity() const;
    void chooseTable(int index) { TablaActual = index; }
    void chooseActivity(int index) { ActividadActual = index; }
    bool isReview() const { return ActividadActual != ViewTable; }

    /// "Tabla del 7 - Ver tabla"
    QString caption() const;
    /// Rows 1 to 5 (half 0) or 6 to 10 (half 1) of the table, ten characters a line.
    QString tableText(int half) const;

    /// Starts or restarts the series of the current table: its ten questions are the exercise.
    void newExercise();

    /// Number of the question, 1 to 10; 11 when the series is over.
    int question() const { return Pregunta.value(); }
    bool isSeriesOver() const { return Pregunta >= Over; }
    int multiplier() const; ///< 1 to 10; 0 when the series is over
    int product() const { return table() * multiplier(); }
    int seriesErrors() const { return ErroresRepaso.value(); }

    /// "Has cometido 3 errores. …"
    QString seriesReport() const;

    /// A right answer brings the next question up or ends the series; a wrong one leaves the
    /// question standing and counts an error. Nothing is judged once the series is over.
    shell::Verdict judge(double answer);

    const shell::VerdictLine& verdict() const { return m_verdict; }
    void clearVerdict() { m_verdict.clear(); }

    /// The product; the pupil still confirms it, and it counts as a right answer.
    int showSolution() const { return product(); }

    /// The table in words: "Tabla del 7: 7 por 1, 7; 7 por 2, 14 …".
    QString spokenTable() const;
    /// The question in words, "7 por 4", and its solution, "7 por 4 igual a 28"; empty once
    /// the series is over.
    QString spokenQuestion() const;
    QString spokenSolution() const;

private:
    static constexpr int Over = 11;

    void shuffle();

    core::RandomSource& m_random;
    std::array<core::Int16, Tables> Tablas{
        1, 2, 5, 10, 3, 4, 6, 7, 8, 9}; ///< as the menu has them
    std::array<core::Int16, 10> Orden; ///< of the questions
    core::Int16 TablaActual; ///< its place in the menu, from 0
    core::Int16 ActividadActual; ///< an Activity
    core::Int16 Pregunta = 1; ///< to 10; Over behind the last one
    core::Int16 ErroresRepaso; ///< of this series
    shell::VerdictLine m_verdict;
};

} // namespace tables
