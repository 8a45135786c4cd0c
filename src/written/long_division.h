#pragma once

#include "shell/exercise.h"
#include "written/long_division_solution.h"

#include <QString>

namespace core {
class RandomSource;
}

namespace written {

enum class DivisionVerdict {
    Right,
    Wrong,
    TooFewDecimals ///< the quotient must go on; nothing is counted
};

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
class LongDivision {
public:
    /// Draws nothing yet. random must outlive the model.
    explicit LongDivision(core::RandomSource& random);

    const DivisionSettings& settings() const { return m_settings; }
    qint32 Dividendo() const { return m_operands.Dividendo; }
    qint32 Divisor() const { return m_operands.Divisor; }
    core::Int16 AnchoLinea() const { return m_AnchoLinea; }
    const shell::ExerciseCounters& counters() const { return m_counters; }
    bool Pendiente() const { return m_Pendiente; }

    /// "84 ÷ 7".
    QString operationText() const;

    /// The work area as the exercise starts: a blank, the dividend and blank room.
    GridText emptyWork() const;

    /// Draws a division; the exercise keeps its state. Throws OverflowError when a number
    /// of so many digits leaves 32 bits.
    void draw();

    /// "&Continuar": draws a division, which is to be counted.
    void next();

    /// For the next exercise.
    void chooseDividendDigits(core::Int16 digits) { m_settings.CifrasDividendo = digits; }
    void chooseDivisorDigits(core::Int16 digits) { m_settings.CifrasDivisor = digits; }

    /// These draw a division at once, as draw() does.
    void chooseDecimals(core::Int16 decimals);
    void toggleProducts();
    void toggleForcedZeros();

    /// Takes the whole part of a typed number as the operand and the length of the typed
    /// text as its count of digits. Says whether it was taken: an empty answer, and for the
    /// divisor a zero, is not. Throws OverflowError beyond 32 bits or 60 characters.
    bool typeDividend(const QString& typed);
    bool typeDivisor(const QString& typed);

    /// Checks and counts the typed quotient and the last number written in the work area.
    DivisionVerdict check(const QString& quotient, const GridText& work);

    /// The worked solution. The exercise is no longer counted.
    WorkedDivision solve();

private:
    struct Operands {
        qint32 Dividendo = 0;
        qint32 Divisor = 1;
    };

    Operands drawOperands(const DivisionSettings& settings) const;
    void start(const DivisionSettings& settings);
    bool isRight(double quotient, double remainder, int decimals) const;
    void count(DivisionVerdict verdict);

    core::RandomSource& m_random;
    DivisionSettings m_settings;
    Operands m_operands;
    core::Int16 m_AnchoLinea = 6;
    shell::ExerciseCounters m_counters;
    bool m_Pendiente = true;
};

} // namespace written
