// How an interface's table is written: one line a member, from which type and call of each argument follow by template.
//
//     method<&ITARQModel::AddCol>("AddCol", "Adds a column.", "LB", "UB", "Type", optional("Cost"), optional("Name"))
//     get<&ITARQModel::get_ColLB>("ColLB", "Lower bound.", "Col"), put<&ITARQModel::put_ColLB>("ColLB", "...", "Col")
//
// A wrong number of names, or a type that late binding doesn't know, doesn't compile. The new value of a put and the
// result of a get or of a resultMethod, which are the last parameters of their functions, bear no name.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "tarq/frame/ienumvariant.h"
#include "tarq/frame/membertable.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// The published enumeration of a C++ type, null if it has none; specialized beside the enumerations.
template <class Enumeration>
inline constexpr const EnumerationTable* enumerationTableOf = nullptr;

/// The arguments of one call in the order of the parameters, on their way to the member and back.
class MemberCall {
public:
    static constexpr std::size_t mostParameters = 16;

    /// The argument of a parameter, null where it is missing without having been passed.
    std::array<const Variant*, mostParameters> given{};
    std::span<const Variant> variadic;
    Variant* result = nullptr;
    static constexpr std::size_t noParameter = SIZE_MAX;
    std::size_t rejected = noParameter;  ///< the parameter whose argument can't be converted
};

namespace binding {

struct ParameterName {
    std::string_view name;
    bool optional = false;

    constexpr ParameterName(const char* text) : name(text) {}
    constexpr ParameterName(std::string_view text, bool mayBeMissing) : name(text), optional(mayBeMissing) {}
};

/// The missing value that stands for an argument that wasn't passed.
TARQ_API const Variant& missingValue();

/// How a declared type is got from a Variant and given to one. `load` is false when the value can't be converted.
template <class Value>
struct Conversion;

template <>
struct Conversion<double> {
    static constexpr ValueType type = ValueType::Double;
    static bool load(const Variant& from, double& to) {
        if (from.is(Kind::Double)) {
            to = from.real();
            return true;
        }
        Variant copy = from.copyDereferenced();
        if (!copy.toReal()) return false;
        to = copy.real();
        return true;
    }
    static Variant store(double value) { return Variant(value); }
};

template <class Whole>
requires(std::same_as<Whole, std::int32_t> || std::is_enum_v<Whole>) struct Conversion<Whole> {
    static constexpr ValueType type = ValueType::Long;
    static bool load(const Variant& from, Whole& to) {
        if (from.is(Kind::Long)) {
            to = static_cast<Whole>(from.integer());
            return true;
        }
        Variant copy = from.copyDereferenced();
        if (!copy.toInteger()) return false;
        to = static_cast<Whole>(copy.integer());
        return true;
    }
    static Variant store(Whole value) { return Variant(static_cast<std::int32_t>(value)); }
};

template <>
struct Conversion<std::string> {
    static constexpr ValueType type = ValueType::Text;
    static bool load(const Variant& from, std::string& to) {
        Variant copy = from.copyDereferenced();
        if (!copy.toText()) return false;
        to = copy.takeText();
        return true;
    }
    static Variant store(std::string value) { return Variant(std::move(value)); }
};

template <>
struct Conversion<Variant> {
    static constexpr ValueType type = ValueType::Variant;
    static bool load(const Variant& from, Variant& to) {
        to = from;
        return true;
    }
    static Variant store(Variant value) { return value; }
};

template <>
struct Conversion<Ref<IUnknown>> {
    static constexpr ValueType type = ValueType::Object;
    static bool load(const Variant& from, Ref<IUnknown>& to) {
        const Variant copy = from.copyDereferenced();
        if (!copy.isObject()) return false;
        to = Ref<IUnknown>(copy.object());
        return true;
    }
    static Variant store(Ref<IUnknown> value) { return Variant(std::move(value)); }
};

/// One argument while a member is called. `load` takes what was passed, `pass` is what the function gets, `giveBack`
/// returns what the function wrote.
template <class Parameter>
struct Slot {
    using Value = std::remove_cvref_t<Parameter>;
    static constexpr ValueType type = Conversion<Value>::type;
    static constexpr bool out = false, variadic = false, nullable = false;

    Value value{};
    bool load(const MemberCall& call, std::size_t index) {
        return call.given[index] != nullptr && Conversion<Value>::load(*call.given[index], value);
    }
    Parameter pass() { return value; }
    void giveBack(MemberCall& /*call*/, std::size_t /*index*/, bool /*isResult*/) {}
};

/// A text or a Variant that is already there isn't copied.
template <class Value>
requires(std::same_as<Value, std::string> || std::same_as<Value, Variant>) struct Slot<const Value&> {
    static constexpr ValueType type = Conversion<Value>::type;
    static constexpr bool out = false, variadic = false, nullable = false;

    [[no_unique_address]] std::conditional_t<std::same_as<Value, Variant>, std::monostate, Value> converted{};
    const Value* value = nullptr;
    bool load(const MemberCall& call, std::size_t index) {
        const Variant& from = call.given[index] == nullptr ? missingValue() : *call.given[index];
        if constexpr (std::same_as<Value, Variant>) {
            value = &from;
            return true;
        } else {
            if (from.isText()) {
                value = &from.text();
                return true;
            }
            value = &converted;
            return Conversion<Value>::load(from, converted);
        }
    }
    const Value& pass() { return *value; }
    void giveBack(MemberCall& /*call*/, std::size_t /*index*/, bool /*isResult*/) {}
};

template <>
struct Slot<IUnknown*> {
    static constexpr ValueType type = ValueType::Object;
    static constexpr bool out = false, variadic = false, nullable = false;

    Ref<IUnknown> value;
    bool load(const MemberCall& call, std::size_t index) {
        return call.given[index] != nullptr && Conversion<Ref<IUnknown>>::load(*call.given[index], value);
    }
    IUnknown* pass() { return value.get(); }
    void giveBack(MemberCall& /*call*/, std::size_t /*index*/, bool /*isResult*/) {}
};

template <>
struct Slot<const ValueList&> {
    static constexpr ValueType type = ValueType::Variant;
    static constexpr bool out = false, variadic = true, nullable = false;

    ValueList value;
    bool load(const MemberCall& call, std::size_t /*index*/) {
        value = ValueList(std::vector<Variant>(call.variadic.begin(), call.variadic.end()));
        return true;
    }
    const ValueList& pass() { return value; }
    void giveBack(MemberCall& /*call*/, std::size_t /*index*/, bool /*isResult*/) {}
};

/// An input by pointer: null when it is missing.
template <class Value>
struct Slot<const Value*> {
    static constexpr ValueType type = Conversion<Value>::type;
    static constexpr bool out = false, variadic = false, nullable = true;

    Value value{};
    bool present = false;
    bool load(const MemberCall& call, std::size_t index) {
        present = call.given[index] != nullptr && !call.given[index]->isMissing();
        return !present || Conversion<Value>::load(*call.given[index], value);
    }
    const Value* pass() { return present ? &value : nullptr; }
    void giveBack(MemberCall& /*call*/, std::size_t /*index*/, bool /*isResult*/) {}
};

/// An output. What the caller's variable holds is where it starts, since a member may leave it as it is.
template <class Value>
struct Slot<Value*> {
    static constexpr ValueType type = Conversion<Value>::type;
    static constexpr bool out = true, variadic = false, nullable = false;

    Value value{};
    bool load(const MemberCall& call, std::size_t index) {
        const Variant* given = call.given[index];
        if (given == nullptr || !given->isByReference()) return true;
        const Variant held = given->copyDereferenced();
        if (held.isEmpty() || held.isByReference()) return writable(*given);
        return writable(*given) && Conversion<Value>::load(held, value);
    }
    Value* pass() { return &value; }
    void giveBack(MemberCall& call, std::size_t index, bool isResult) {
        if (isResult) {
            if (call.result != nullptr) *call.result = Conversion<Value>::store(std::move(value));
            return;
        }
        const Variant* given = call.given[index];
        if (given == nullptr) return;
        if constexpr (!std::is_enum_v<Value> && !std::same_as<Value, Variant>) {
            if (Value* variable = given->referenced<Value>()) {
                *variable = std::move(value);
                return;
            }
        }
        if (Variant* variable = given->referenced<Variant>()) *variable = Conversion<Value>::store(std::move(value));
        if constexpr (std::is_enum_v<Value>) {
            if (auto* variable = given->referenced<std::int32_t>()) *variable = static_cast<std::int32_t>(value);
        }
    }

private:
    static bool writable(const Variant& given) {
        if (given.referenced<Variant>() != nullptr) return true;
        if constexpr (std::is_enum_v<Value>) {
            return given.referenced<std::int32_t>() != nullptr;
        } else if constexpr (std::same_as<Value, Variant>) {
            return false;
        } else {
            return given.referenced<Value>() != nullptr;
        }
    }
};

template <class Parameter>
constexpr const EnumerationTable* enumerationIn() {
    return enumerationTableOf<std::remove_cvref_t<std::remove_pointer_t<std::remove_cvref_t<Parameter>>>>;
}

template <class Function>
struct Signature;

template <class Interface, class... Parameters>
struct Signature<Status (Interface::*)(Parameters...)> {
    static constexpr std::size_t arity = sizeof...(Parameters);
    static_assert(arity <= MemberCall::mostParameters);
    using Slots = std::tuple<Slot<Parameters>...>;
    template <std::size_t Index>
    using Parameter = std::tuple_element_t<Index, std::tuple<Parameters...>>;

    /// `resultIndex` is the parameter that is the member's result, or arity.
    template <Status (Interface::*function)(Parameters...), std::size_t resultIndex>
    static Status call(IDispatch& object, MemberCall& arguments) {
        return callWith<function, resultIndex>(static_cast<Interface&>(object), arguments,
                                               std::index_sequence_for<Parameters...>());
    }

    static std::vector<MemberParameter> parameters() { return describe(std::index_sequence_for<Parameters...>()); }

private:
    template <Status (Interface::*function)(Parameters...), std::size_t resultIndex, std::size_t... Index>
    static Status callWith(Interface& object, MemberCall& arguments, std::index_sequence<Index...> /*all*/) {
        [[maybe_unused]] Slots places;
        const bool loaded = (loadOne(std::get<Index>(places), arguments, Index) && ...);
        if (!loaded) return status::argumentType;
        const Status ended = (object.*function)(std::get<Index>(places).pass()...);
        if (ended.isOk()) (std::get<Index>(places).giveBack(arguments, Index, Index == resultIndex), ...);
        // An enumerator at its end tells how many elements there were all the same.
        if (ended == IEnumVARIANT::fewerLeft && resultIndex == arity) {
            (std::get<Index>(places).giveBack(arguments, Index, false), ...);
        }
        return ended;
    }
    template <class Argument>
    static bool loadOne(Argument& slot, MemberCall& arguments, std::size_t index) {
        if (slot.load(arguments, index)) return true;
        arguments.rejected = index;
        return false;
    }
    template <std::size_t... Index>
    static std::vector<MemberParameter> describe(std::index_sequence<Index...> /*all*/) {
        return {MemberParameter{.name = {},
                                .type = Slot<Parameters>::type,
                                .enumeration = enumerationIn<Parameters>(),
                                .optional = Slot<Parameters>::nullable,
                                .variadic = Slot<Parameters>::variadic,
                                .out = Slot<Parameters>::out}...};
    }
};

template <auto function>
using SignatureOf = Signature<decltype(function)>;

/// Puts the names on the parameters and takes the result out of them.
TARQ_API MemberInfo makeMember(MemberKind kind, std::string_view name, std::string_view help,
                               std::vector<MemberParameter> parameters, std::span<const ParameterName> names,
                               std::size_t resultIndex);

template <auto function, std::size_t resultIndex, std::size_t count>
MemberInfo bind(MemberKind kind, std::string_view name, std::string_view help,
                const std::array<ParameterName, count>& names) {
    MemberInfo member = makeMember(kind, name, help, SignatureOf<function>::parameters(), names, resultIndex);
    member.call = &SignatureOf<function>::template call<function, resultIndex>;
    return member;
}

}  // namespace binding

/// Marks the name of a parameter that may be left out.
constexpr binding::ParameterName optional(std::string_view name) { return {name, true}; }

/// A method. Its outputs are handed back through the arguments.
template <auto function, std::convertible_to<binding::ParameterName>... Names>
MemberInfo method(std::string_view name, std::string_view help, const Names&... names) {
    constexpr std::size_t arity = binding::SignatureOf<function>::arity;
    static_assert(sizeof...(Names) == arity, "each parameter has a name");
    return binding::bind<function, arity>(MemberKind::Method, name, help,
                                          std::array<binding::ParameterName, arity>{names...});
}

/// A method whose last parameter is its result and bears no name.
template <auto function, std::convertible_to<binding::ParameterName>... Names>
MemberInfo resultMethod(std::string_view name, std::string_view help, const Names&... names) {
    constexpr std::size_t arity = binding::SignatureOf<function>::arity;
    static_assert(sizeof...(Names) + 1 == arity, "each parameter but the result has a name");
    return binding::bind<function, arity - 1>(MemberKind::Method, name, help,
                                              std::array<binding::ParameterName, sizeof...(Names)>{names...});
}

/// The get of a property; the last parameter is its value and bears no name.
template <auto function, std::convertible_to<binding::ParameterName>... Names>
MemberInfo get(std::string_view name, std::string_view help, const Names&... names) {
    constexpr std::size_t arity = binding::SignatureOf<function>::arity;
    static_assert(sizeof...(Names) + 1 == arity, "each parameter but the value has a name");
    return binding::bind<function, arity - 1>(MemberKind::Get, name, help,
                                              std::array<binding::ParameterName, sizeof...(Names)>{names...});
}

/// The put of a property; the last parameter is its new value and bears no name.
template <auto function, std::convertible_to<binding::ParameterName>... Names>
MemberInfo put(std::string_view name, std::string_view help, const Names&... names) {
    constexpr std::size_t arity = binding::SignatureOf<function>::arity;
    static_assert(sizeof...(Names) + 1 == arity, "each parameter but the value has a name");
    return binding::bind<function, arity>(MemberKind::Put, name, help,
                                          std::array<binding::ParameterName, sizeof...(Names)>{names...});
}

/// The same member with a number of its own.
inline MemberInfo numbered(std::int32_t id, MemberInfo member) {
    member.id = id;
    return member;
}

/// The same member with the interface of its result, an object.
template <class Interface>
MemberInfo returning(MemberInfo member) {
    member.resultInterface = &Interface::memberTable;
    return member;
}

/// The same member with the one that asks it to end soon.
inline MemberInfo stoppedBy(std::string_view stop, MemberInfo member) {
    member.stoppedBy = stop;
    return member;
}

/// The same member with flags.
inline MemberInfo flagged(MemberFlags flags, MemberInfo member) {
    member.flags = flags;
    return member;
}

}  // namespace tarq
