// SeriesRange, the three numbers that tell a series, and SeriesWalk, the walk over its members.
#pragma once

#include <cstdint>

#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// An arithmetic sequence from `start` on; `end` belongs to it if a step lands there.
struct SeriesRange {
    double start = 0.0;
    double end = 0.0;
    double step = 1.0;

    /// Number of members by the quotient of length and step, at most what 32 bits hold, which is also the count where
    /// not-a-number or infinity leave no quotient: no walk ends there. Adding up the steps, as a walk does, can round
    /// to one member more or less.
    [[nodiscard]] std::int32_t count() const noexcept;
};

/// Makes a range. A missing step is 1, or -1 where `start` isn't below `end`. Failures have the status invalidArgument
/// and leave `range` as it was.
Outcome makeSeriesRange(double start, double end, const Variant& step, SeriesRange& range);

/// Where an enumerator is in a series. A step of 0, or one too small to change the current member, walks without end
/// over the same member.
struct SeriesWalk {
    SeriesRange range;
    double current = 0.0;

    [[nodiscard]] bool inRange() const noexcept {
        return range.step > 0 ? !(current > range.end) : !(current < range.end);
    }
    /// Whether a member in front of the end is the current one.
    [[nodiscard]] bool isBeforeEnd() const noexcept {
        return range.step > 0 ? current < range.end : current > range.end;
    }
    void advance() noexcept { current += range.step; }
    void skip(std::uint32_t count) noexcept { current += count * range.step; }
    void reset() noexcept { current = range.start; }
};

}  // namespace tarq
