#pragma once

#include "shell/exercise.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace core {
class RandomSource;
}

namespace written {

/// What became of a factor that the pupil typed.
enum class TypedFactor {
    Ignored, ///< empty or not a number
    TooLarge, ///< the product would leave the range of a double
    Accepted,
};

/// The rules of written multiplication: two factors, one partial product for each digit of
/// the second one, and the result. Partial products are texts: each ends in as many blanks
/// as its digit stands away from the units.
class LongMultiplication : public shell::Exercise {
public:
    /// What is typed on the board, row 0 at the top.
    struct Answer {
        QString result;
        QStringList rows;
    };

    /// Draws nothing yet. random must outlive the model.
    explicit LongMultiplication(core::RandomSource& random);

    /// Draws both factors as the settings ask and prepares the rows. Leaves whether the
    /// exercise counts, and the counters, alone: meant. Throws core::OverflowError, and keeps the
    /// exercise, when factors of so many digits have no product.
    void newExercise();

    double Factor1() const { return m_exercise.factor1; }
    double Factor2() const { return m_exercise.factor2; }
    double Producto() const { return m_exercise.product; }
    QString factor1Text() const;
    /// The second factor as it is shown, with or without its "x" in front.
    QString factor2Text() const;

    /// The partial product that each row should hold, row 0 at the top.
    const QStringList& expectedRows() const { return m_exercise.rows; }
    /// The exact product, where Producto() has been rounded too.
    QString resultText() const;
    /// With a single digit in factor 2, the one partial product is the result.
    bool firstRowIsResult() const;

    core::Int16 CifrasFactor1() const { return m_CifrasFactor1; }
    core::Int16 CifrasFactor2() const { return m_CifrasFactor2; }
    /// The digits of the factors from the next exercise on.
    void setCifrasFactor1(core::Int16 digits) { m_CifrasFactor1 = digits; }
    void setCifrasFactor2(core::Int16 digits) { m_CifrasFactor2 = digits; }

    bool CualquierCifra() const { return m_CualquierCifra; }
    QString CifrasElegidas() const { return m_CifrasElegidas; }
    /// The digits that factor 2 may use from the next exercise on; none chosen means any.
    void chooseDigits(const QString& digits);
    /// Any digit again; the chosen ones are remembered.
    void allowAnyDigit() { m_CualquierCifra = true; }
    /// Caption of the menu item that chooses digits, once it has been used.
    QString digitsCaption() const;

    bool OcultarCeros() const { return m_OcultarCeros; }
    /// Whether zeros of factor 2 have no row, from the next exercise on.
    void toggleOcultarCeros() { m_OcultarCeros = !m_OcultarCeros; }
    QString zerosCaption() const;

    /// Put a typed factor in place of the drawn one. Whether it counts, and the counters, stay.
    TypedFactor typeFactor1(QStringView typed);
    TypedFactor typeFactor2(QStringView typed);

    /// The exercise counts from its first check on, as a new one does.
    void setPending() { Pendiente = true; }

    /// Judges the board and counts. Throws core::OverflowError, with nothing changed, when a
    /// counter is full.
    shell::Verdict judge(const Answer& answer);

    /// Indexes of the rows that are wrong; none after a right result: the rows are not looked
    /// at then.
    const std::vector<int>& wrongRows() const { return m_wrongRows; }

    /// The product; resultText() and expectedRows() are to be written on the board.
    QString showSolution() const { return resultText(); }

    /// The product of digits that belongs to a caret place in a row whose text has length
    /// characters, such as "7 × 3"; nothing right of the units of factor 1.
    std::optional<QString> productHint(int posicion, int fila, int length) const;
    /// What is read aloud: the factors, the solution, the rows that are wrong, if any are, and
    /// the place that the next digit will have in a row or in the result, from the caret's place
    /// in a text of length characters.
    QString spokenExercise() const;
    QString spokenSolution() const;
    QString spokenWrongRows() const;
    static QString spokenCaret(int posicion, int length);

    /// Writes that hint into the verdict line. Says whether there is one.
    bool IndicaProducto(int posicion, int fila, int length);

private:
    struct Exercise {
        double factor1 = 0;
        double factor2 = 0;
        double product = 0;
        bool hasSign = true; // whether the shown factor 2 has its "x"
        QStringList rows;
    };

    double randomFactor(core::Int16 digits);
    double randomFromChosenDigits();
    TypedFactor replaceFactors(double factor1, double factor2, bool hasSign);
    bool prepare(Exercise exercise);
    QStringList partialProducts(double factor1, double factor2) const;
    std::vector<int> compareRows(const QStringList& rows) const;

    core::RandomSource& m_random;
    Exercise m_exercise;
    core::Int16 m_CifrasFactor1 = 4;
    core::Int16 m_CifrasFactor2 = 2;
    bool m_CualquierCifra = true;
    QString m_CifrasElegidas;
    bool m_OcultarCeros = false;
    std::vector<int> m_wrongRows;
};

} // namespace written
