// ISeriesLength: how many members the enumerator of a series walks, which its public members don't tell. Of the
// component's own use.
#pragma once

#include <cstdint>

#include "indexed/values/ownpart.h"

namespace tarq {

class ISeriesLength : public IOwnPart {
public:
    static constexpr Guid id{0x2C4D9A37, 0x8E15, 0x4B6A, {0x93, 0xF0, 0x1D, 0x7A, 0x58, 0xC6, 0x0E, 0xB2}};

    /// Number of members as SeriesRange::count tells it.
    virtual std::int32_t memberCount() const = 0;

protected:
    ~ISeriesLength() = default;
};

}  // namespace tarq
