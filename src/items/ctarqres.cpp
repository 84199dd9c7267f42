#include "items/ctarqres.h"

#include "frame/result.h"
#include "indexed/values/termlist.h"

namespace tarq {
namespace {

/// Whatever the model's own value for infinity is.
constexpr double unbounded = 1e25;

Outcome addTerms(ITARQModel& model, const Variant& row, const ValueList& list) {
    TermList terms;
    TARQ_TRY(parseCoeffsAndCols(list, terms));
    return walkTerms(terms, [&](const std::string& name, double coefficient) -> Outcome {
        return model.AddNZ(row, Variant(name), coefficient);
    });
}

}  // namespace

Status CTARQRes::SetLT(double Bound) {
    return guarded(classid::TARQRes, [&] { return item_.putBounds(-unbounded, Bound); });
}

Status CTARQRes::SetEQ(double Bound) {
    return guarded(classid::TARQRes, [&] { return item_.putBounds(Bound, Bound); });
}

Status CTARQRes::SetGT(double Bound) {
    return guarded(classid::TARQRes, [&] { return item_.putBounds(Bound, unbounded); });
}

Status CTARQRes::Sum(const ValueList& CoeffsAndCols) {
    return guarded(classid::TARQRes, [&]() -> Outcome {
        const Ref<ITARQModel> model = item_.model();
        if (!model) return {status::wrongState, "TARQRes is not attached to a TARQModel."};
        return addTerms(*model, item_.address(), CoeffsAndCols);
    });
}

}  // namespace tarq
