#include "model/editchecks.h"

namespace tarq {

Outcome boundOrderFailure() { return {status::boundOrder, "Lower bound is greater than upper bound."}; }

Outcome indexRangeFailure() { return {status::indexOutOfRange, "Index out of valid range."}; }

Outcome readNameArgument(const Variant& argument, const NameArgumentTexts& texts, std::string& name) {
    Variant value = argument.copyDereferenced();
    if (value.isMissing()) {
        name.clear();
        return {};
    }
    if (!value.isScalarKind() || !value.toText()) {
        return {status::wrongKind, std::string(texts.wrongKind)};
    }
    if (value.text().size() > nameLengthLimit) return {texts.badName, std::string(texts.tooLong)};
    name = value.text();
    return {};
}

}  // namespace tarq
