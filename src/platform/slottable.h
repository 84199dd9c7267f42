// SlotTable: the functions that a library is asked for by name, as one list that makes the struct, the names and the
// types. An entry is either bound or empty; an empty one answers with a result of its own instead of being called.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "platform/dynamiclibrary.h"
#include "platform/exceptionbarrier.h"

namespace tarq {

/// Text that can stand as a template argument.
template <std::size_t size>
struct FixedText {
    char text[size];

    // Implicit, so that a literal can be written where a name is wanted.
    consteval FixedText(const char (&literal)[size]) : text{} {
        for (std::size_t i = 0; i < size; ++i) text[i] = literal[i];
    }
};

/// One function of a library, with the result that stands for a call when the library lacks it or lets an exception
/// out of it.
template <FixedText exportedName, class Function, auto emptyResult>
struct Slot {
    static constexpr const char* name = exportedName.text;
    Function* function = nullptr;

    template <class... Arguments>
    std::invoke_result_t<Function*, Arguments...> operator()(Arguments... arguments) const {
        using Result = std::invoke_result_t<Function*, Arguments...>;
        constexpr auto empty = static_cast<Result>(emptyResult);
        return withoutException([&]() -> Result { return function != nullptr ? function(arguments...) : empty; },
                                []() -> Result { return empty; });
    }
};

template <class... Slots>
struct SlotTable : Slots... {
    static constexpr std::size_t count = sizeof...(Slots);

    /// Looks up every name in `library`; one that isn't there leaves its slot empty.
    void bind(const DynamicLibrary& library) { (bindSlot<Slots>(library), ...); }

    /// The slot of a name; a name that isn't in the list doesn't compile.
    template <FixedText name>
    [[nodiscard]] const auto& slot() const {
        return find<name>(*this);
    }
    template <FixedText name>
    [[nodiscard]] auto& slot() {
        return find<name>(*this);
    }

    /// True when every slot is bound but, at most, those of these names.
    template <FixedText... optionalNames>
    [[nodiscard]] bool isBoundBut() const {
        return (isBoundOr<Slots, optionalNames...>() && ...);
    }

private:
    template <class SlotType>
    void bindSlot(const DynamicLibrary& library) {
        SlotType& slot = *this;
        slot.function = reinterpret_cast<decltype(slot.function)>(library.symbol(SlotType::name));
    }

    template <class SlotType, FixedText... optionalNames>
    [[nodiscard]] bool isBoundOr() const {
        const SlotType& slot = *this;
        return slot.function != nullptr || ((std::string_view(optionalNames.text) == SlotType::name) || ...);
    }

    template <FixedText name, class Function, auto emptyResult>
    static const Slot<name, Function, emptyResult>& find(const Slot<name, Function, emptyResult>& slot) {
        return slot;
    }
    template <FixedText name, class Function, auto emptyResult>
    static Slot<name, Function, emptyResult>& find(Slot<name, Function, emptyResult>& slot) {
        return slot;
    }
};

}  // namespace tarq
