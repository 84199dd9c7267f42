// ColumnStatements: what the statements behind a Lindo model do to its columns.
//
// A statement may name the first n columns at once, and a text may do so as often as it has lines. So these are only
// noted, and each column takes what concerns it when it is named by itself or when all is said: the cost of a
// statement doesn't depend on n.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/modelstore.h"

namespace tarq {

enum class ColumnStatement { Free, General, Binary };

class ColumnStatements {
public:
    /// The columns are those of the store, which keeps its number of them from now on.
    explicit ColumnStatements(ModelStore& store) : store_(store) {}

    void applyToFirst(ColumnStatement statement, std::int32_t count);
    void apply(ColumnStatement statement, std::int32_t position);
    /// The column as all statements so far have left it, to be changed.
    [[nodiscard]] ColumnRecord& column(std::int32_t position);
    /// Brings all columns up to date.
    void finish();

private:
    using Time = std::int64_t;
    /// The latest statement of its kind for columns before `count`; those behind it in the list are later and shorter.
    struct Mark {
        std::int32_t count;
        Time time;
    };

    [[nodiscard]] Time latest(ColumnStatement statement, std::int32_t position) const;

    ModelStore& store_;
    Time now_ = 0;                            ///< 0 as long as no statement named the first n columns
    std::array<std::vector<Mark>, 3> marks_;  ///< by statement
    std::vector<Time> appliedUpTo_;           ///< by column; empty as long as `now_` is 0
};

}  // namespace tarq
