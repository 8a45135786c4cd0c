#pragma once

#include "core/int16.h"

#include <QString>

#include <vector>

namespace games {

/// A phase of number rain: the rule that tells which numbers are to be eliminated.
class RainPhase {
public:
    /// fase: from 1. Odd numbers, then even ones, then the multiples of 3, of 4 ...
    explicit RainPhase(core::Int16 fase);

    core::Int16 Fase() const { return m_fase; }
    const std::vector<core::Int16>& Objetivos() const { return m_Objetivos; } ///< to eliminate
    const std::vector<core::Int16>& Otros() const { return m_Otros; } ///< to be left alone
    bool EsObjetivo(core::Int16 number) const;

    QString caption() const;
    QString instruction() const;

private:
    core::Int16 m_fase;
    std::vector<core::Int16> m_Objetivos;
    std::vector<core::Int16> m_Otros;
};

} // namespace games
