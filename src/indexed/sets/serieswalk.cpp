#include "indexed/sets/serieswalk.h"

#include <cmath>
#include <limits>

namespace tarq {

std::int32_t SeriesRange::count() const noexcept {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    const double members = std::trunc(std::abs(end - start) / std::abs(step)) + 1;
    return members < most ? static_cast<std::int32_t>(members) : most;
}

Outcome makeSeriesRange(double start, double end, const Variant& step, SeriesRange& range) {
    Variant given = step.copyDereferenced();
    if (given.isMissing()) {
        range = {start, end, start < end ? 1.0 : -1.0};
        return {};
    }
    if (!given.toReal()) {
        return {status::invalidArgument, "Parameter 'Step' could not be converted to numeric value."};
    }
    const double size = given.real();
    if (size == 0.0) return {status::invalidArgument, "Step may not be zero."};
    if (size > 0 && end < start) return {status::invalidArgument, "Start is greater than End."};
    if (size < 0 && start < end) return {status::invalidArgument, "Start is less than End."};
    range = {start, end, size};
    return {};
}

}  // namespace tarq
