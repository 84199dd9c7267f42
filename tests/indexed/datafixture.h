// Sets, series and lists of values as tests write and read them.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "indexed/sets/ctarqseries.h"
#include "indexed/sets/ctarqset.h"
#include "indexed/sets/ctarqsetenum.h"
#include "tarq/frame/countedobject.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/frame/safearray.h"
#include "tarq/frame/valuelist.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqseriesenum.h"
#include "tests/support/outcomematchers.h"

namespace tarq {

/// The call returned this status, and the thread's record tells this description as one of the class.
MATCHER_P3(raisesAs, classId, status, description, "raises '" + std::string(description) + "'") {
    const ObjectError* const error = lastError();
    if (error == nullptr) return false;
    *result_listener << "described as '" << error->description << "'";
    return arg == status && error->status == status && error->description == description && error->classId == classId;
}

template <class Class, class Interface>
Ref<Interface> make() {
    void* made = nullptr;
    EXPECT_THAT(createInstance<Class>(nullptr, Interface::id, &made), succeeds());
    return Ref<Interface>::adopt(static_cast<Interface*>(made));
}

inline Variant valueOf(const Variant& value) { return value; }
template <class Value>
Variant valueOf(const Value& value) {
    return Variant(value);
}
template <class Interface>
Variant valueOf(const Ref<Interface>& object) {
    return Variant(Ref<IUnknown>(object.get()));
}

/// The list of a variadic argument.
template <class... Values>
ValueList listOf(const Values&... values) {
    return ValueList(std::vector<Variant>{valueOf(values)...});
}

inline Ref<ITARQSet> newSet(const ValueList& list = {}) {
    Ref<ITARQSet> set = make<CTARQSet, ITARQSet>();
    EXPECT_THAT(set->Add(list), succeeds());
    return set;
}

inline Ref<ITARQSeries> newSeries(double start, double end) {
    Ref<ITARQSeries> series = make<CTARQSeries, ITARQSeries>();
    EXPECT_THAT(series->Init(start, end), succeeds());
    return series;
}

/// A value so that its kind shows: 3, 3r for a real, 'a' for a text.
inline std::string shown(const Variant& value) {
    if (value.isText()) return std::string("'").append(value.text()).append("'");
    Variant text = value;
    if (value.is(Kind::Double)) return text.toText() ? text.takeText().append("r") : "?";
    return value.is(Kind::Long) ? std::to_string(value.integer())
                                : std::string("kind ").append(std::to_string(value.code()));
}

inline std::string shown(const std::vector<Variant>& values) {
    std::string all;
    for (const Variant& value : values) all.append(all.empty() ? "" : " ").append(shown(value));
    return all;
}

inline std::string shown(const Ref<ITARQSet>& set) {
    std::int32_t count = 0;
    EXPECT_THAT(set->get_Count(&count), succeeds());
    std::vector<Variant> values(static_cast<std::size_t>(count));
    for (std::int32_t index = 1; index <= count; ++index) {
        EXPECT_THAT(set->get_Item(index, &values[static_cast<std::size_t>(index) - 1]), succeeds());
    }
    return shown(values);
}

/// What is left in an enumerator.
inline std::string shown(const Ref<IEnumVARIANT>& enumerator) {
    std::vector<Variant> values;
    Variant value;
    while (enumerator->Next(1, &value, nullptr).isOk()) values.push_back(value);
    return shown(values);
}

/// What _NewEnum hands out.
template <class Interface>
Ref<IEnumVARIANT> enumeratorOf(const Ref<Interface>& collection) {
    Ref<IUnknown> made;
    EXPECT_THAT(collection->get__NewEnum(&made), succeeds());
    return made.query<IEnumVARIANT>();
}

/// A client's own object that has values: it runs `next` for each of them and has none left when that is false.
class ClientValues final : public CountedObject<ClientValues, ITARQSeriesEnum, IEnumVARIANT> {
public:
    using Source = std::function<bool(Variant& value)>;
    static Ref<ITARQSeriesEnum> create(Source next) {
        return Ref<ITARQSeriesEnum>(std::make_unique<ClientValues>(std::move(next)).release());
    }
    explicit ClientValues(Source next) : next_(std::move(next)) {}

    Status Init(double /*start*/, double /*end*/, double /*step*/) override { return status::ok; }
    Status Next(std::uint32_t /*count*/, Variant* values, std::uint32_t* /*fetched*/) override {
        return next_(*values) ? status::ok : fewerLeft;
    }
    Status Skip(std::uint32_t /*count*/) override { return status::notImplemented; }
    Status Reset() override { return status::ok; }
    Status Clone(IEnumVARIANT** /*copy*/) override { return status::notImplemented; }

private:
    Source next_;
};

}  // namespace tarq
