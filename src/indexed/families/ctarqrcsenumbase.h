// CTARQRCSEnumBase: what the enumerators over families of columns and of rows have in common, which is all but names.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "frame/result.h"
#include "indexed/dimensions/ctarqenumbase.h"

namespace tarq {

/// Base of the enumerator `Derived`, which tells `notInitialized`, what it answers before Init where it is asked for
/// itself. Each item is a new object that the family gives for the member's name.
template <class Derived, class EnumInterface, class ParentInterface, const Guid& classId>
class CTARQRCSEnumBase : public CTARQEnumBase<Derived, EnumInterface, ParentInterface, classId> {
public:
    Status Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) override {
        if (values == nullptr && count > 0) return status::nullPointer;
        const Status ready = guarded(classId, [&] { return this->requireInitialized(); });
        if (!ready.isOk()) return ready;
        return this->fetchItems(count, values, fetched, [](ParentInterface& family, std::string name, Variant& value) {
            Ref<IUnknown> item;
            const Status got = family.get_Item(Variant(std::move(name)), &item);
            if (got.isOk()) value = Variant(std::move(item));
            return got;
        });
    }

    Status get__NewEnum(Ref<IUnknown>* value) override {  // NOLINT(bugprone-reserved-identifier)
        return guarded(classId, [&]() -> Outcome {
            if (!this->initialized_) return {status::notInitialized, std::string(Derived::notInitialized)};
            if (value == nullptr) return status::nullPointer;
            this->walk_.reset();
            *value = Ref<IUnknown>(static_cast<IEnumVARIANT*>(this));
            return {};
        });
    }
    Status Init(IUnknown* family, const Variant& Index1, const Variant& Index2, const Variant& Index3,
                const Variant& Index4, const Variant& Index5) override {
        return guarded(classId, [&]() -> Outcome {
            Ref<ParentInterface> parent = Ref<IUnknown>(family).query<ParentInterface>();
            this->walk_ = SelectionWalk();
            if (!parent) return {status::invalidArgument, "First paramter is no TARQResSet or TARQVarSet."};
            std::string name;
            TARQ_TRY(parent->get_Name(&name));
            return this->select(std::move(parent), {&Index1, &Index2, &Index3, &Index4, &Index5}, std::move(name));
        });
    }

    Status VB_Reset() override { return this->Reset(); }
    Status VB_Skip(std::int32_t ItemsToSkip) override { return this->Skip(static_cast<std::uint32_t>(ItemsToSkip)); }
    Status VB_Next(Variant* Items, std::int32_t* NumberOfItemsFetched) override {
        std::uint32_t fetched = 0;
        const Status ended = Next(1, Items, &fetched);
        const bool isWritten = !ended.failed() && NumberOfItemsFetched != nullptr;
        if (isWritten) *NumberOfItemsFetched = static_cast<std::int32_t>(fetched);
        return ended;
    }

    Status get_Count(std::int32_t* value) override {
        if (value == nullptr) return status::nullPointer;
        return guarded(classId, [&]() -> Outcome {
            TARQ_TRY(this->requireInitialized());
            // A family that Init found too large still has its dimensions.
            const std::size_t count = this->walk_.count();
            if (count > std::numeric_limits<std::int32_t>::max()) return status::outOfMemory;
            *value = static_cast<std::int32_t>(count);
            return {};
        });
    }
    Status get_ItemName(std::int32_t ItemIndex, std::string* value) override {
        if (value == nullptr) return status::nullPointer;
        return guarded(classId, [&]() -> Outcome {
            TARQ_TRY(this->requireInitialized());
            if (ItemIndex < 1 || static_cast<std::size_t>(ItemIndex) > this->walk_.count()) {
                return {status::indexOutOfRange, "Index out of valid range."};
            }
            *value = this->walk_.name(static_cast<std::size_t>(ItemIndex) - 1);
            return {};
        });
    }

protected:
    ~CTARQRCSEnumBase() = default;
};

}  // namespace tarq
