// SelectionWalk: the names of selected things one after the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "indexed/dimensions/indexarguments.h"

namespace tarq {

/// The full index names of a selection, the last dimension fastest, and a position among them.
class SelectionWalk {
public:
    SelectionWalk() = default;
    /// A selection from the dimensions `base`; every name begins with `prefix`.
    SelectionWalk(std::string prefix, Dimensions base, Selection selection)
        : prefix_(std::move(prefix)), base_(std::move(base)), selection_(std::move(selection)) {}

    [[nodiscard]] std::size_t count() const noexcept { return selection_.count(); }
    [[nodiscard]] std::size_t position() const noexcept { return position_; }
    /// Name of the item at a position from 0 to before count.
    [[nodiscard]] std::string name(std::size_t position) const;

    void reset() noexcept { position_ = 0; }
    void advance() noexcept { ++position_; }
    /// Goes `items` on where that doesn't reach the end; else it stays and tells false.
    bool skip(std::size_t items) noexcept;

private:
    std::string prefix_;
    Dimensions base_;
    Selection selection_;
    std::size_t position_ = 0;
};

}  // namespace tarq
