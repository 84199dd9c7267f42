// ColumnFinder: finds the columns that a section names one after the other.
//
// Such sections mostly name them in their order, so a column is first looked for at and just behind the one before:
// these records are at hand, where a look-up by name waits for memory.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "model/modelstore.h"

namespace tarq {

class ColumnFinder {
public:
    explicit ColumnFinder(const ModelStore& store) : store_(store) {}

    /// The position of a column, or what `lookUp()` gives for one that stands elsewhere: its position, else -1.
    template <class LookUp>
    [[nodiscard]] std::int32_t find(std::string_view name, const LookUp& lookUp) {
        constexpr std::int32_t reach = 4;
        const std::int32_t end = std::min(latest_ + reach, store_.columnCount());
        for (std::int32_t position = latest_; position < end; ++position) {
            if (store_.column(position).name == name) return latest_ = position;
        }
        const std::int32_t position = lookUp();
        if (position >= 0) latest_ = position;
        return position;
    }

private:
    const ModelStore& store_;
    std::int32_t latest_ = 0;
};

}  // namespace tarq
