#pragma once

#include <QtGlobal>
#include <array>
#include <random>

namespace sample {

/// Chance that is the same on every machine: the same seed gives the same throws.
class Random
{
public:
    explicit Random(quint32 seed)
        : m_engine(seed)
    {
    }

    /// A number from 0 to `count` - 1.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<quint32>(count)); }
    /// A number of the span, both ends included.
    int between(int low, int high) { return low + below(high - low + 1); }
    bool chance(int percent) { return below(100) < percent; }

    template <typename Table>
    const auto& pick(const Table& table)
    {
        return table[static_cast<size_t>(below(static_cast<int>(std::size(table))))];
    }

private:
    std::mt19937 m_engine;
};

} // namespace sample
