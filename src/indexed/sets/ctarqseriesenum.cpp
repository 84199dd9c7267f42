#include "indexed/sets/ctarqseriesenum.h"

#include "frame/memberguard.h"
#include "tarq/interfaces/classids.h"

namespace tarq {
namespace {

Status notInitialized() {
    return guarded(classid::TARQSeriesEnum,
                   [] { return Outcome(status::notInitialized, "TARQSeriesEnum has not been initialized."); });
}

}  // namespace

Status CTARQSeriesEnum::Init(double Start, double End, double Step) {
    walk_ = {.range = {Start, End, Step}, .current = Start};
    initialized_ = true;
    return status::ok;
}

Status CTARQSeriesEnum::Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) {
    if (!initialized_) return notInitialized();
    if (values == nullptr && count > 0) return status::nullPointer;
    std::uint32_t taken = 0;
    for (; taken < count && walk_.inRange(); ++taken) {
        values[taken] = Variant(walk_.current);
        walk_.advance();
    }
    if (fetched != nullptr) *fetched = taken + 1;
    return taken == count ? status::ok : fewerLeft;
}

Status CTARQSeriesEnum::Skip(std::uint32_t count) {
    if (!initialized_) return notInitialized();
    walk_.skip(count);
    return walk_.isBeforeEnd() ? status::ok : fewerLeft;
}

Status CTARQSeriesEnum::Reset() {
    if (!initialized_) return notInitialized();
    walk_.reset();
    return status::ok;
}

Status CTARQSeriesEnum::Clone(IEnumVARIANT** /*copy*/) { return status::notImplemented; }

}  // namespace tarq
