#include "component/objectivesum.h"

#include <cstdint>
#include <string>

#include "indexed/termlist.h"

namespace tarq {

Outcome assignCosts(ModelStore& store, const ValueList& coeffsAndCols) {
    TermList terms;
    if (Outcome outcome = parseCoeffsAndCols(coeffsAndCols, terms); !outcome.isOk()) return outcome;
    return walkTerms(terms, [&store](const std::string& name, double coefficient) -> Outcome {
        const std::int32_t position = store.findColumn(name);
        if (position < 0) {
            return {status::badColumnName, std::string("Col name '").append(name).append("' does not exist.")};
        }
        const auto held = store.gate().edit();
        store.column(position).cost = coefficient;
        return {};
    });
}

}  // namespace tarq
