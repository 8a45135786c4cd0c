#pragma once

#include "core/random.h"

#include <QtTest>

#include <deque>
#include <initializer_list>
#include <stdexcept>
#include <vector>

/// Draws that a test has written down. Running out of them fails the test.
class ScriptedRandom final : public core::RandomSource {
public:
    ScriptedRandom() = default;
    ScriptedRandom(std::initializer_list<float> draws)
        : m_draws(draws)
    {
    }

    void seed(double value) override { seeds.push_back(value); }

    float next() override
    {
        if (m_draws.empty())
            throw std::runtime_error("the test has scripted no more draws");
        const float draw = m_draws.front();
        m_draws.pop_front();
        return draw;
    }

    void append(std::initializer_list<float> draws)
    {
        m_draws.insert(m_draws.end(), draws.begin(), draws.end());
    }

    /// Appends the middle of the step that randomInteger turns into value.
    void appendInteger(int value, int count, int first)
    {
        const int step = value - first;
        m_draws.push_back((static_cast<float>(step) + 0.5f) / static_cast<float>(count));
    }

    std::size_t left() const { return m_draws.size(); }

    std::vector<double> seeds; ///< every seed given, in order

private:
    std::deque<float> m_draws;
};
