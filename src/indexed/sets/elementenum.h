// ElementEnum: the enumerator that a set hands to a script's for-each.
//
// It walks the elements as they were when it was made, so a script may change the set, or let go of it, in the loop.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "indexed/sets/elementlist.h"
#include "tarq/frame/countedobject.h"
#include "tarq/frame/ienumvariant.h"

namespace tarq {

class ElementEnum final : public CountedObject<ElementEnum, IEnumVARIANT> {
public:
    using Elements = std::shared_ptr<const ElementList::Values>;

    /// An enumerator that goes on at a 0-based position.
    static Ref<IEnumVARIANT> create(Elements elements, std::size_t position = 0);

    /// Constructor for `create`.
    ElementEnum(Elements elements, std::size_t position) : elements_(std::move(elements)), position_(position) {}

    Status Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) override;
    Status Skip(std::uint32_t count) override;
    Status Reset() override;
    Status Clone(IEnumVARIANT** copy) override;

private:
    [[nodiscard]] std::size_t left() const noexcept { return elements_->size() - position_; }

    Elements elements_;
    std::size_t position_;
};

}  // namespace tarq
