// LindoTarget: adds the sums of a Lindo file, its objective and its restrictions, to a model.
//
// Knows nothing of tokens. Terms are kept until what they look at is on its way from memory; columns are kept small
// until all are known, as every term asks for one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/modelstore.h"
#include "model/nonzeroloader.h"
#include "modelfiles/fixedname.h"
#include "modelfiles/fixednametable.h"
#include "modelfiles/numberednames.h"
#include "platform/largepages.h"

namespace tarq {

class LindoTarget {
public:
    /// `store` must be empty.
    explicit LindoTarget(ModelStore& store) : store_(store) {}

    /// Makes room for so many columns in all, a guess at what is to come.
    void reserveColumns(std::size_t count);
    /// Adds a term to the objective, as long as there is no restriction. A new variable becomes a column.
    void addCost(FixedName variable, double coefficient) { take({variable, coefficient, 0, NumberedNames::absent}); }
    void endObjective();
    /// Adds a term to the restriction that is the last row of the store. A new variable becomes a column.
    void addToRow(FixedName variable, double coefficient) {
        const std::int32_t position = numbered_.find(variable);
        if (position >= 0) prefetchPlace(position);
        take({variable, coefficient, store_.rowCount(), position});
    }
    /// The position of a column that its name alone tells; -1 for others, which may be columns too.
    [[nodiscard]] std::int32_t numberedColumn(FixedName name) const { return numbered_.find(name); }
    /// Hands columns and nonzeros to the store; to be called once, before anyone looks at its columns.
    void finish();

private:
    struct Term {
        FixedName variable;
        double coefficient = 0.0;
        std::int32_t rowNumber = 0;  ///< 0 for the objective
        std::int32_t position = NumberedNames::absent;
    };
    struct Column {
        FixedName name;
        double cost = 0.0;
    };
    struct RowEntry {
        std::int32_t column;
        double value;
    };

    void take(const Term& term) {
        if (termCount_ == terms_.size()) storeTerms();
        if (term.position < 0 && columns_.size() != static_cast<std::size_t>(numbered_.count())) {
            others_.prefetch(term.variable);
        }
        terms_[termCount_++] = term;
    }
    void prefetchPlace([[maybe_unused]] std::int32_t position) const {
#if defined(__GNUC__)
        const auto index = static_cast<std::size_t>(position);
        if (index < placeInRow_.size()) __builtin_prefetch(&placeInRow_[index]);
#endif
    }
    void storeTerms();
    [[nodiscard]] std::int32_t findOrAddColumn(FixedName name);
    void addEntry(const Term& term);
    void storeRow();
    void storeColumns();

    ModelStore& store_;
    NonzeroLoader nonzeros_;
    std::vector<Column, LargePageAllocator<Column>> columns_;
    NumberedNames numbered_;  ///< of the columns, the first ones as long as they count up
    FixedNameTable others_;   ///< of all other columns
    static constexpr std::size_t termsKept = 64;
    std::array<Term, termsKept> terms_{};
    std::size_t termCount_ = 0;
    std::vector<RowEntry> row_;  ///< of the restriction `rowNumber_`
    std::int32_t rowNumber_ = 0;
    std::vector<std::uint32_t, LargePageAllocator<std::uint32_t>>
        placeInRow_;  ///< by column, where it stood in the latest row that had it
};

}  // namespace tarq
