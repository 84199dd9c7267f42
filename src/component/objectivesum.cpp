#include "component/objectivesum.h"

#include <cstdint>
#include <string>

#include "frame/result.h"
#include "indexed/values/termlist.h"

namespace tarq {

Outcome assignCosts(ModelStore& store, const ValueList& coeffsAndCols) {
    TermList terms;
    TARQ_TRY(parseCoeffsAndCols(coeffsAndCols, terms));
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
