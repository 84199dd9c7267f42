// CTARQEnumBase: what the enumerators over a selection of named things have in common.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/memberguard.h"
#include "frame/result.h"
#include "indexed/dimensions/idimensions.h"
#include "indexed/dimensions/selectionwalk.h"
#include "tarq/frame/countedobject.h"
#include "tarq/frame/ienumvariant.h"

namespace tarq {

/// Base of the enumerator `Derived`, with the interface `EnumInterface`, over objects that offer `ParentInterface`.
template <class Derived, class EnumInterface, class ParentInterface, const Guid& classId>
class CTARQEnumBase : public CountedObject<Derived, EnumInterface, IEnumVARIANT> {
public:
    Status Skip(std::uint32_t count) override {
        Status ended;
        const Status ready = guarded(classId, [&]() -> Outcome {
            TARQ_TRY(requireInitialized());
            ended = walk_.skip(count) ? status::ok : IEnumVARIANT::fewerLeft;
            return {};
        });
        return ready.isOk() ? ended : ready;
    }
    Status Reset() override {
        return guarded(classId, [&]() -> Outcome {
            TARQ_TRY(requireInitialized());
            walk_.reset();
            return {};
        });
    }
    Status Clone(IEnumVARIANT** /*copy*/) override { return status::notImplemented; }

protected:
    ~CTARQEnumBase() = default;

    [[nodiscard]] Outcome requireInitialized() const {
        return initialized_ ? Outcome() : Outcome(status::notInitialized, "Enumerator has not been initialized.");
    }

    /// Selects from the parent's dimensions and starts before the first item.
    Outcome select(Ref<ParentInterface> parent, const IndexArguments& indices, std::string prefix) {
        walk_ = SelectionWalk();
        Dimensions base;
        TARQ_TRY(readDimensions(parent, base));
        Selection selection;
        TARQ_TRY(selectIndexsets(indices, *base, selection));
        // Together, because reading the indices may have called a client that started this enumerator over others.
        walk_ = SelectionWalk(std::move(prefix), std::move(base), std::move(selection));
        parent_ = std::move(parent);
        initialized_ = true;
        return {};
    }

    /// What Next does once it is clear that it can: hands out the next items, each got by `fetch`, which is given the
    /// parent, the item's name and where to put it. A fetch that fails ends the call.
    template <class Fetch>
    Status fetchItems(std::uint32_t count, Variant* values, std::uint32_t* fetched, const Fetch& fetch) {
        std::uint32_t done = 0;
        Status read;
        const Status ended = guarded(classId, [&]() -> Outcome {
            for (; done < count && walk_.position() < walk_.count(); ++done) {
                // The parent may call a client that starts this over another one.
                const Ref<ParentInterface> parent = parent_;
                read = fetch(*parent, walk_.name(walk_.position()), values[done]);
                if (read.failed()) break;
                walk_.advance();
            }
            return {};
        });
        if (!ended.isOk()) return ended;
        if (read.failed()) return read;
        if (fetched != nullptr) *fetched = done;
        return done == count ? status::ok : IEnumVARIANT::fewerLeft;
    }

    SelectionWalk walk_;
    Ref<ParentInterface> parent_;
    bool initialized_ = false;

private:
    /// A walk over a slice must not cost what the names of the whole parent do, so these are shared if possible, and
    /// otherwise read.
    static Status readDimensions(const Ref<ParentInterface>& parent, Dimensions& base) {
        if (const auto known = ownPartOf<IDimensions>(parent)) {
            base = known->sharedDimensions();
            return status::ok;
        }
        const auto names = std::make_shared<std::vector<Indexset>>();
        base = names;
        return readNames(*parent, *names);
    }

    static Status readNames(ParentInterface& parent, std::vector<Indexset>& base) {
        std::int32_t dimensions = 0;
        TARQ_TRY(parent.get_NumberOfIndexsets(&dimensions));
        for (std::int32_t dimension = 1; dimension <= dimensions; ++dimension) {
            std::int32_t size = 0;
            TARQ_TRY(parent.get_SizeOfIndexset(dimension, &size));
            Indexset& names = base.emplace_back();
            for (std::int32_t element = 1; element <= size; ++element) {
                std::string name;
                const Status read = parent.get_IndexsetElement(dimension, element, &name);
                if (!read.isOk()) return read;
                names.append(std::move(name));
            }
        }
        return status::ok;
    }
};

}  // namespace tarq
