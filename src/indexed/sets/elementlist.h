// ElementList: the elements of a set, in their order.
//
// The values can be shared with an enumerator, which then sees them as they were: the first change after that goes to a
// copy. Sharing is free, and so is every change while nobody shares. For one thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <vector>

#include "tarq/frame/variant.h"

namespace tarq {

class ElementList {
public:
    using Values = std::vector<Variant>;

    [[nodiscard]] const Values& values() const noexcept { return *values_; }
    [[nodiscard]] std::size_t size() const noexcept { return values_->size(); }
    /// Number of elements, which never exceeds what positions can tell.
    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(size()); }

    [[nodiscard]] std::shared_ptr<const Values> share() const noexcept { return values_; }

    /// The values for a change that doesn't make the list longer.
    [[nodiscard]] Values& change() {
        if (values_.use_count() > 1) values_ = std::make_shared<Values>(*values_);
        return *values_;
    }
    /// Inserts values in front of a 0-based position, at the end where there is no such position. Linear in the values
    /// and those behind them. Throws std::bad_alloc when there would be too many.
    void insert(std::size_t position, Values inserted);
    /// Gives the memory back too.
    void clear() { values_ = std::make_shared<Values>(); }

private:
    std::shared_ptr<Values> values_ = std::make_shared<Values>();
};

}  // namespace tarq
