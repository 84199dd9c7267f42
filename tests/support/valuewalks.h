// Stand-ins for objects that have values: what is walked, and how the walk fails, is up to the test.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tarq/frame/countedobject.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/frame/objecterror.h"
#include "tarq/interfaces/itarqarrayenum.h"
#include "tarq/interfaces/itarqseries.h"
#include "tarq/interfaces/itarqseriesenum.h"

namespace tarq {

/// The values, and behind them the failure, if any.
struct WalkedValues {
    std::vector<Variant> values;
    std::string failure{};
};

template <class Derived, class Interface>
class ValueWalk : public CountedObject<Derived, Interface, IEnumVARIANT> {
public:
    explicit ValueWalk(WalkedValues walked) : walked_(std::move(walked)) {}

    Status Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) override {
        std::uint32_t handedOut = 0;
        while (handedOut < count && next_ < walked_.values.size()) values[handedOut++] = walked_.values[next_++];
        if (fetched != nullptr) *fetched = handedOut;
        if (handedOut == count) return status::ok;
        return walked_.failure.empty() ? fewerLeft : raise(Guid(), walked_.failure, status::wrongState);
    }
    Status Skip(std::uint32_t /*count*/) override { return status::notImplemented; }
    Status Reset() override {
        next_ = 0;
        return status::ok;
    }
    Status Clone(IEnumVARIANT** /*copy*/) override { return status::notImplemented; }

protected:
    using IEnumVARIANT::fewerLeft;
    ~ValueWalk() = default;

private:
    WalkedValues walked_;
    std::size_t next_ = 0;
};

class SeriesWalk final : public ValueWalk<SeriesWalk, ITARQSeriesEnum> {
public:
    using ValueWalk::ValueWalk;
    Status Init(double /*Start*/, double /*End*/, double /*Step*/) override { return status::notImplemented; }
};

class ArrayWalk final : public ValueWalk<ArrayWalk, ITARQArrayEnum> {
public:
    using ValueWalk::ValueWalk;
    Status get__NewEnum(Ref<IUnknown>* /*value*/) override { return status::notImplemented; }
    Status Init(IUnknown* /*TARQArray*/, const Variant& /*Index1*/, const Variant& /*Index2*/,
                const Variant& /*Index3*/, const Variant& /*Index4*/, const Variant& /*Index5*/) override {
        return status::notImplemented;
    }
    Status MoveFirst() override { return status::notImplemented; }
    Status MoveNext() override { return status::notImplemented; }
    Status get_CurrentItem(Variant* /*value*/) override { return status::notImplemented; }
    Status get_CurrentIndexName(std::string* /*value*/) override { return status::notImplemented; }
    Status get_IsLast(std::int32_t* /*value*/) override { return status::notImplemented; }
    Status get_IsBeyondLast(std::int32_t* /*value*/) override { return status::notImplemented; }
};

/// An object of the class, which reads what `arguments` tell.
template <class Class, class... Arguments>
Variant objectOf(Arguments&&... arguments) {
    auto* const object = new Class(std::forward<Arguments>(arguments)...);
    return Variant(Ref<IUnknown>(&object->identity()));
}

/// A series with a walk of its own for each that asks.
class WalkedSeries final : public CountedObject<WalkedSeries, ITARQSeries> {
public:
    explicit WalkedSeries(WalkedValues walked) : walked_(std::move(walked)) {}
    Status Init(double /*Start*/, double /*End*/, const Variant& /*Step*/) override { return status::notImplemented; }
    Status get__NewEnum(Ref<IUnknown>* value) override {
        if (walked_.values.empty()) return raise(Guid(), walked_.failure, status::notInitialized);
        *value = Ref<IUnknown>(objectOf<SeriesWalk>(walked_).object());
        return status::ok;
    }
    Status get_Series(double /*Start*/, double /*End*/, const Variant& /*Step*/, Ref<IUnknown>* /*value*/) override {
        return status::notImplemented;
    }
    Status get_Count(std::int32_t* /*value*/) override { return status::notImplemented; }

private:
    WalkedValues walked_;
};

/// An object that offers nothing.
class Stranger final : public CountedObject<Stranger, IUnknown> {};

}  // namespace tarq
