#include "indexed/families/ctarqresset.h"

#include <vector>

#include "frame/result.h"
#include "indexed/values/termlist.h"

namespace tarq {
namespace {

constexpr double infinity = 1e25;  // whatever the model's own is

Status changeBothBounds(ITARQModel& model, std::int32_t position, const Variant& value) {
    const double bound = value.real();
    return model._ChangeRow(position, &bound, &bound, nullptr);
}

/// Adds one term to one row.
Outcome addTerm(ITARQModel& model, std::int32_t rowNumber, const std::vector<Variant>& columns,
                const CoefficientGroup& coefficients) {
    const Variant row(rowNumber);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const double coefficient = coefficients[coefficients.size() == 1 ? 0 : i];
        TARQ_TRY(model.AddNZ(row, columns[i], coefficient));
    }
    return {};
}

}  // namespace

Status CTARQResSet::SetLT(const Variant& Bound, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                          const Variant& Index4, const Variant& Index5) {
    const IndexArguments indices{&Index1, &Index2, &Index3, &Index4, &Index5};
    const Status opened = write(rowFamilies.changeLower, indices, Variant(-infinity));
    return opened.isOk() ? write(rowFamilies.changeUpper, indices, Bound) : opened;
}

Status CTARQResSet::SetEQ(const Variant& Bound, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                          const Variant& Index4, const Variant& Index5) {
    return write(&changeBothBounds, {&Index1, &Index2, &Index3, &Index4, &Index5}, Bound);
}

Status CTARQResSet::SetGT(const Variant& Bound, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                          const Variant& Index4, const Variant& Index5) {
    const IndexArguments indices{&Index1, &Index2, &Index3, &Index4, &Index5};
    const Status opened = write(rowFamilies.changeUpper, indices, Variant(infinity));
    return opened.isOk() ? write(rowFamilies.changeLower, indices, Bound) : opened;
}

Status CTARQResSet::Sum(const ValueList& CoeffsAndCols) {
    return guarded(rowFamilies.classId, [&] { return addTerms(CoeffsAndCols); });
}

Outcome CTARQResSet::addTerms(const ValueList& coeffsAndCols) {
    const Ref<ITARQModel> model = family_.model();
    if (!model) return {status::wrongState, "TARQResSet is not attached to a TARQModel."};
    TermList terms;
    TARQ_TRY(parseCoeffsAndCols(coeffsAndCols, terms));
    TARQ_TRY(checkTermCount(terms));
    TARQ_TRY(family_.requireInitialized());
    const std::size_t rows = family_.memberCount();
    std::int32_t start = 0;
    TARQ_TRY(family_.findStart(*model, start));
    for (std::size_t term = 0; term < terms.columns.size(); ++term) {
        const CoefficientGroup& coefficients = terms.coefficients[term];
        TARQ_TRY(checkTerm(coefficients, terms.columns[term]));
        std::vector<Variant> columns;
        for (std::string& name : terms.columns[term]) columns.emplace_back(std::move(name));
        for (std::size_t ordinal = 0; ordinal < rows; ++ordinal) {
            std::int32_t row = 0;
            TARQ_TRY(family_.numberInModel(start, ordinal, row));
            TARQ_TRY(addTerm(*model, row, columns, coefficients));
        }
    }
    return {};
}

Status CTARQResSet::get_Dual(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                             const Variant& Index5, Variant* value) {
    return read(&ITARQModel::get_RowDual, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
}

}  // namespace tarq
