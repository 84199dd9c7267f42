// CTARQModel: coefficients.
#include <algorithm>
#include <limits>

#include "component/ctarqmodel.h"
#include "model/modeledit.h"

namespace tarq {

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::AddNZ(const Variant& Row, const Variant& Col, double newVal) {
    return guarded([&] { return addNonzero(store_, Row, Col, newVal); });
}

Status CTARQModel::DelNZ(const Variant& Col, const Variant& Row) {
    return guarded([&] { return deleteNonzero(store_, Col, Row); });
}

Status CTARQModel::get_NZ(const Variant& Row, const Variant& Col, double* value) {
    return guardedResult(value, [&] { return getNonzero(store_, Row, Col); });
}

Status CTARQModel::put_NZ(const Variant& Row, const Variant& Col, double value) {
    return guarded([&] { return putNonzero(store_, Row, Col, value); });
}

Status CTARQModel::get_NumberOfNZ(std::int32_t* value) {
    return guardedGet(value, [&] {
        constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
        return static_cast<std::int32_t>(std::min(store_.nonzeros().size(), most));
    });
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
