// IReadingNotes: what other programs may read differently in the file that a model was read from. Beside the published
// interface, so that a program can tell its users.
#pragma once

#include <cstdint>

#include "tarq/frame/object.h"

namespace tarq {

/// Columns of a file whose bounds are a matter of dialect. A line in which the file settles the matter, such as an `UP`
/// behind an `MI`, leaves nothing to count.
struct ReadingNotes {
    std::int32_t upperBoundsSetByMi = 0;     ///< `MI` set the upper bound to 0 as well
    std::int32_t lowerBoundsAboveUpper = 0;  ///< the upper bound lies below 0, and the lower bound stayed 0
    std::int32_t integersUpToOne = 0;        ///< an integer column that got no upper bound ends at 1
};

class IReadingNotes : public IUnknown {
public:
    static constexpr Guid id{0xF09AEFA1, 0xB136, 0x4F7A, {0x83, 0x22, 0x79, 0xBB, 0x13, 0xFC, 0x14, 0xAB}};

    /// Of the model file that was read last; all 0 when it was no MPS file or failed, and after DelModel.
    virtual ReadingNotes readingNotes() const = 0;

protected:
    ~IReadingNotes() = default;
};

}  // namespace tarq
