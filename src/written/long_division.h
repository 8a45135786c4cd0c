#pragma once

#include "shell/exercise.h"
#include "written/long_division_solution.h"

#include <QString>

namespace core {
class RandomSource;
}

namespace written {

/// What the pupil chooses for the divisions to come.
struct DivisionSettings {
    core::Int16 CifrasDividendo = 2;
    core::Int16 CifrasDivisor = 1;
    core::Int16 DecimalesCociente = 0;
    bool RestasIntermedias = false; ///< the solution also writes the products to subtract
    bool ForzarCeros = false; ///< the quotient must contain a zero
};

/// The long-division drill: the exercise, its settings and its counters. What throws
/// changes nothing.
class LongDivision : public shell::Exercise {
public:
    /// The quotient as typed and the work under the dividend.
    struct Answer {
        QString quotient;
        GridText work;
    };

    /// Draws nothing yet. random must outlive the model.
    explicit LongDivision(core::RandomSource& random);

    const DivisionSettings& settings() const { return m_settings; }
    qint32 Dividendo() const { return m_operands.Dividendo; }
    qint32 Divisor() const { return m_operands.Divisor; }
    core::Int16 AnchoLinea() const { return m_AnchoLinea; }

    /// How many characters the divisor or a quotient may have, whichever is longer.
    int rightFigures() const;
    /// How many lines the work may take: the dividend, a product and a remainder for each figure
    /// that the quotient may have, and one to spare.
    int workLines() const;

    /// "84 ÷ 7".
    QString operationText() const;

    /// What is read aloud: the division, its solution, and a square of the work: its line, what
    /// stands above it and, at the top of its column, the dividend's digit.
    QString spokenExercise() const;
    static QString spokenSolution(const WorkedDivision& worked);
    static QString spokenSquare(const GridText& work, int position);

    /// The work area as the exercise starts: a blank, the dividend and blank room.
    GridText emptyWork() const;

    /// Draws a division; whether it counts stays as it was: meant. Throws OverflowError when a
    /// number of so many digits leaves 32 bits.
    void newExercise();

    /// "&Continuar": draws a division, which is to be counted.
    void nextExercise();

    /// For the next exercise.
    void chooseDividendDigits(core::Int16 digits) { m_settings.CifrasDividendo = digits; }
    void chooseDivisorDigits(core::Int16 digits) { m_settings.CifrasDivisor = digits; }

    /// These draw a division at once, as newExercise() does.
    void chooseDecimals(core::Int16 decimals);
    void toggleProducts();
    void toggleForcedZeros();

    /// Takes the whole part of a typed number as the operand and the length of the typed
    /// text as its count of digits. Says whether it was taken: an empty answer, and for the
    /// divisor a zero, is not. Throws OverflowError beyond 32 bits or 60 characters.
    bool typeDividend(const QString& typed);
    bool typeDivisor(const QString& typed);

    /// Judges and counts the typed quotient and the last number written in the work area.
    /// Nothing is judged where the quotient must go on: tooFewDecimals() says so.
    shell::Verdict judge(const Answer& answer);
    QString tooFewDecimals() const;

    /// The worked solution. The exercise is no longer counted.
    WorkedDivision showSolution();

private:
    struct Operands {
        qint32 Dividendo = 0;
        qint32 Divisor = 1;
    };

    Operands randomOperands(const DivisionSettings& settings) const;
    void start(const DivisionSettings& settings);
    bool isRight(double quotient, double remainder, int decimals) const;

    core::RandomSource& m_random;
    DivisionSettings m_settings;
    Operands m_operands;
    core::Int16 m_AnchoLinea = 6;
};

} // namespace written
