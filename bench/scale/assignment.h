// The model that is built at scale: which of n people does which of n tasks, at the least cost. Each pair is a column
// from 0 to 1; each person does one task and each task is done once, so there are 2 n rows and 2 n * n nonzeros.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace scale {

/// Costs from 1 to 1000 for one person after the other: whole numbers, the same in each program that draws them so.
inline std::vector<double> drawCosts(std::size_t size) {
    std::vector<double> costs(size * size);
    for (std::size_t pair = 0; pair < costs.size(); ++pair) {
        std::uint64_t number = (pair + 1) * 0x9E3779B97F4A7C15;
        number = (number ^ (number >> 30)) * 0xBF58476D1CE4E5B9;
        number = (number ^ (number >> 27)) * 0x94D049BB133111EB;
        costs[pair] = static_cast<double>(1 + (number ^ (number >> 31)) % 1000);
    }
    return costs;
}

}  // namespace scale
