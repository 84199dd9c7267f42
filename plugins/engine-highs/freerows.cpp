#include "freerows.h"

namespace tarq::engine {

namespace {

template <typename Value>
void insertAt(const std::vector<HighsInt>& places, Value inserted, std::vector<Value>& values) {
    std::vector<Value> whole;
    whole.reserve(values.size() + places.size());
    auto next = values.cbegin();
    for (const HighsInt place : places) {
        const auto count = static_cast<std::ptrdiff_t>(place) - static_cast<std::ptrdiff_t>(whole.size());
        whole.insert(whole.end(), next, next + count);
        next += count;
        whole.push_back(inserted);
    }
    whole.insert(whole.end(), next, values.cend());
    values = std::move(whole);
}

}  // namespace

std::vector<HighsInt> freeRowsOf(const HighsLp& lp) {
    std::vector<HighsInt> rows;
    for (HighsInt row = 0; row < lp.num_row_; ++row) {
        const auto place = static_cast<std::size_t>(row);
        if (lp.row_lower_[place] <= -kHighsInf && lp.row_upper_[place] >= kHighsInf) rows.push_back(row);
    }
    return rows;
}

void insertFreeRows(const std::vector<HighsInt>& freeRows, HighsSolution& solution, HighsBasis& basis) {
    if (solution.value_valid) insertAt(freeRows, 0.0, solution.row_value);
    if (solution.dual_valid) insertAt(freeRows, 0.0, solution.row_dual);
    if (basis.valid) insertAt(freeRows, HighsBasisStatus::kBasic, basis.row_status);
}

}  // namespace tarq::engine
