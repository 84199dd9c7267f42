// Objects as C++ programs like to have them: a failed call is an exception, a result is returned, and names, numbers
// and vectors are given where the interfaces want Variants. Everything here is inline and stands on the public
// interfaces.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "tarq/tarq.h"

namespace tarq::client {

using Names = std::vector<std::string>;
using Numbers = std::vector<double>;
using Table = std::vector<Numbers>;  ///< rows of equal length

/// A call that failed, or that had a message in place of a result, such as a value of a solution where there is none.
class Error : public std::runtime_error {
public:
    Error(Status status, const std::string& text) : std::runtime_error(text), status_(status) {}

    [[nodiscard]] Status status() const { return status_; }

private:
    Status status_;
};

/// Throws what the component has to say about `status`, which the calling thread's latest call has returned.
[[noreturn]] inline void raiseError(Status status) {
    const ObjectError* error = lastError();
    const bool isTold = error != nullptr && error->status == status && !error->description.empty();
    throw Error(status, isTold ? error->description : std::string(status::meaning(status)));
}

/// Throws when a call has failed. A success with a message, such as a run that ended at a limit, is none.
inline void check(Status status) {
    if (status.failed()) raiseError(status);
}

template <class Interface>
class Object;

/// A Variant made of what a program has at hand.
class Value : public Variant {
public:
    Value(Variant value) : Variant(std::move(value)) {}
    Value(const char* name) : Variant(name) {}
    Value(const std::string& name) : Variant(name) {}
    Value(std::string_view name) : Variant(name) {}
    template <class Number>
    requires(std::is_arithmetic_v<Number> || std::is_enum_v<Number>) Value(Number number) : Variant(ofNumber(number)) {}
    template <class Element>
    Value(const std::vector<Element>& elements) : Variant(SafeArray::of(elements)) {}
    /// A matrix. std::invalid_argument when its rows are of different lengths.
    Value(const Table& table) : Variant(ofTable(table)) {}
    template <class Interface>
    Value(const Ref<Interface>& object) : Variant(Ref<IUnknown>(object.get())) {}
    template <class Interface>
    Value(const Object<Interface>& object) : Value(object.reference()) {}

private:
    template <class Number>
    static Variant ofNumber(Number number) {
        if constexpr (std::is_same_v<Number, bool> || std::is_floating_point_v<Number>) {
            return Variant(number);
        } else if constexpr (sizeof(Number) < sizeof(std::int64_t) && !std::is_same_v<Number, std::uint32_t>) {
            return Variant(static_cast<std::int32_t>(number));
        } else {
            return Variant(static_cast<double>(number));
        }
    }

    static Variant ofTable(const Table& table) {
        const std::size_t width = table.empty() ? 0 : table.front().size();
        const std::array dimensions{Dimension{0, static_cast<std::uint32_t>(table.size())},
                                    Dimension{0, static_cast<std::uint32_t>(width)}};
        SafeArray array;
        check(SafeArray::create(Kind::Double, dimensions, array));
        auto element = array.elements<double>().begin();
        for (const Numbers& row : table) {
            if (row.size() != width) throw std::invalid_argument("the rows of a table are of different lengths");
            element = std::copy(row.begin(), row.end(), element);
        }
        return Variant(std::move(array));
    }
};

/// In place of an index: the whole dimension. In place of any other argument: the one that is left out.
inline const Value all = Variant::missing();

namespace detail {

/// The number or the text that a Variant holds or can become; Error with wrongKind for any other.
template <class Wanted>
Wanted plainValue(Variant value) {
    if constexpr (std::is_same_v<Wanted, std::string>) {
        if (!value.toText()) raiseError(status::wrongKind);
        return value.takeText();
    } else {
        if (value.isArray() || !value.toReal()) raiseError(status::wrongKind);
        return static_cast<Wanted>(value.real());
    }
}

/// A list argument; it holds the arrays that the list refers to.
class List {
public:
    template <class... Given>
    explicit List(const Given&... given) : values_{Value(given)...} {
        std::vector<Variant> list;
        list.reserve(values_.size());
        for (Value& value : values_) list.push_back(value.isArray() ? Variant::byReference(value.array()) : value);
        list_ = ValueList(std::move(list));
    }
    List(const List&) = delete;
    List& operator=(const List&) = delete;

    operator const ValueList&() const { return list_; }

private:
    std::vector<Value> values_;
    ValueList list_;
};

/// What is handed over for the parameter of the type `Parameter` at the position `at`, where `given` are the arguments.
template <class Parameter, std::size_t at, class Given>
decltype(auto) argument(const Given& given) {
    if constexpr (std::is_same_v<Parameter, const ValueList&>) {
        return [&]<std::size_t... rest>(std::index_sequence<rest...>) { return List(std::get<at + rest>(given)...); }
        (std::make_index_sequence<std::tuple_size_v<Given> - at>());
    } else if constexpr (at >= std::tuple_size_v<Given>) {
        static_assert(std::is_same_v<Parameter, const Variant&>, "an argument is left out that the member needs");
        return (all);
    } else if constexpr (std::is_same_v<Parameter, const Variant&>) {
        return Value(std::get<at>(given));
    } else if constexpr (std::is_pointer_v<Parameter>) {
        return std::get<at>(given).reference().get();
    } else if constexpr (std::is_same_v<std::tuple_element_t<at, Given>, const Value&>) {
        return plainValue<std::decay_t<Parameter>>(std::get<at>(given));
    } else {
        return static_cast<std::decay_t<Parameter>>(std::get<at>(given));
    }
}

template <class... Parameters>
using LastOf = std::tuple_element_t<sizeof...(Parameters), std::tuple<void, Parameters...>>;

/// Whether the first parameters take all arguments given: the last ones are a list, or there are enough.
template <std::size_t count, class... Parameters>
inline constexpr bool takes = count <= sizeof...(Parameters) || std::is_same_v<LastOf<Parameters...>, const ValueList&>;

}  // namespace detail

/// A counted reference to an object by one of its interfaces, with three ways to call a member, as it is named there:
///
///     model.call(&ITARQModel::AddRow, 0, 240, "boards");
///     model.put(&ITARQModel::put_ColUB, 30, "tables");              // first the value, then the indices
///     double made = model.get(&ITARQModel::get_ColLPSol, "tables");
///
/// Arguments that are left out at the end are missing ones. Where a member takes a list, the rest of the arguments are
/// its values. Each throws Error on a failure.
template <class Interface>
class Object {
public:
    /// std::invalid_argument for a reference to nothing.
    explicit Object(Ref<Interface> object) : object_(std::move(object)) {
        if (!object_) throw std::invalid_argument("there is no object");
    }
    /// An object of another static type, such as a result; throws when it doesn't offer the interface.
    template <class Other>
    explicit Object(const Ref<Other>& object) : Object(object.template query<Interface>()) {}
    /// A new object of a class. Throws what createObject has to say.
    explicit Object(std::string_view className) : object_(made(className).template query<Interface>()) {
        if (!object_) throw Error(status::wrongClass, std::string(status::meaning(status::wrongClass)));
    }

    [[nodiscard]] const Ref<Interface>& reference() const { return object_; }
    [[nodiscard]] Interface* operator->() const { return object_.get(); }

    template <class Owner, class... Parameters, class... Arguments>
    void call(Status (Owner::*member)(Parameters...), const Arguments&... arguments) const {
        static_assert(detail::takes<sizeof...(Arguments), Parameters...>, "the member has fewer parameters");
        const std::tuple<const Arguments&...> given(arguments...);
        [&]<std::size_t... at>(std::index_sequence<at...>) {
            check((object_.get()->*member)(detail::argument<Parameters, at>(given)...));
        }
        (std::index_sequence_for<Parameters...>());
    }

    template <class Owner, class... Parameters, class... Arguments>
    [[nodiscard]] auto get(Status (Owner::*member)(Parameters...), const Arguments&... arguments) const {
        std::remove_pointer_t<detail::LastOf<Parameters...>> result{};
        const Status status = callWithLast(member, &result, arguments...);
        if (!status.isOk()) raiseError(status);
        return result;
    }

    template <class Owner, class... Parameters, class Given, class... Arguments>
    void put(Status (Owner::*member)(Parameters...), const Given& value, const Arguments&... arguments) const {
        using Last = detail::LastOf<Parameters...>;
        check(callWithLast(member, detail::argument<Last, 0>(std::tuple<const Given&>(value)), arguments...));
    }

private:
    static Ref<IUnknown> made(std::string_view className) {
        Ref<IUnknown> object = createObject(className);
        if (!object) raiseError(lastError() != nullptr ? lastError()->status : status::classNotAvailable);
        return object;
    }

    template <class Owner, class... Parameters, class Last, class... Arguments>
    [[nodiscard]] Status callWithLast(Status (Owner::*member)(Parameters...), Last&& last,
                                      const Arguments&... arguments) const {
        constexpr std::size_t leading = sizeof...(Parameters) - 1;
        const std::tuple<const Arguments&...> given(arguments...);
        return [&]<std::size_t... at>(std::index_sequence<at...>) {
            return (object_.get()->*member)(
                detail::argument<std::tuple_element_t<at, std::tuple<Parameters...>>, at>(given)..., last);
        }
        (std::make_index_sequence<leading>());
    }

    Ref<Interface> object_;
};

/// A property of an object at fixed indices, to be read as what is wanted (a number, a text, a Variant) and, where it
/// has a put, to be assigned. It holds its object.
template <class Interface, auto get, auto put = nullptr>
class Property {
public:
    template <class... Index>
    explicit Property(const Object<Interface>& object, const Index&... indices)
        : object_(object), indices_{Value(indices)...} {}

    /// Error with wrongKind when the value isn't one of the kind wanted, such as an array for a number.
    template <class Wanted>
    [[nodiscard]] Wanted as() const {
        auto value = read(std::make_index_sequence<indexCount(get)>());
        using Read = decltype(value);
        if constexpr (!std::is_same_v<Read, Variant> || std::is_same_v<Wanted, Variant>) {
            return static_cast<Wanted>(value);
        } else {
            return detail::plainValue<Wanted>(std::move(value));
        }
    }
    template <class Wanted>
    operator Wanted() const {
        return as<Wanted>();
    }
    [[nodiscard]] double number() const { return as<double>(); }

    void operator=(const Value& value) const requires(!std::is_null_pointer_v<decltype(put)>) {
        write(value, std::make_index_sequence<indexCount(get)>());
    }

private:
    template <class Owner, class... Parameters>
    static constexpr std::size_t indexCount(Status (Owner::*)(Parameters...)) {
        return sizeof...(Parameters) - 1;
    }
    [[nodiscard]] const Value& index(std::size_t at) const { return at < indices_.size() ? indices_[at] : all; }

    template <std::size_t... at>
    auto read(std::index_sequence<at...>) const {
        return object_.get(get, index(at)...);
    }
    template <std::size_t... at>
    void write(const Value& value, std::index_sequence<at...>) const {
        object_.put(put, value, index(at)...);
    }

    Object<Interface> object_;
    std::vector<Value> indices_;
};

}  // namespace tarq::client
