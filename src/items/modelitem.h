// ModelItem: what objects for columns and objects for rows have in common, a number in a model or data of their own.
//
// Attached, every answer is the model's; it is asked through its interface alone, by number, and refuses a number that
// it has lost. The model is held for the time of each call, since what it calls may let go of it. Functions that take
// an output expect a variable; texts are copied, so lack of memory throws where nothing else is said. No exception of a
// client's model passes a function that returns a Status or nothing.
#pragma once

#include <cstdint>
#include <string>

#include "frame/memberguard.h"
#include "tarq/frame/object.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {

/// What columns and rows differ in: the model's members for them, and the words of failures.
struct ItemSide {
    template <class Value>
    using Getter = Status (ITARQModel::*)(const Variant& address, Value* value);

    Getter<std::int32_t> number;
    Getter<double> lowerBound;
    Getter<double> upperBound;
    Getter<double> lpValue;
    Getter<double> ipValue;
    Getter<double> price;  ///< reduced cost or dual
    Getter<TARQColRowStatusType> status;
    Status (ITARQModel::*name)(std::int32_t number, std::string* value);
    Status (ITARQModel::*rename)(std::int32_t number, const std::string& value);
    Status (ITARQModel::*count)(std::int32_t* value);
    Status (*changeBounds)(ITARQModel& model, std::int32_t position, const double* lower, const double* upper);
    const char* noNumber;     ///< of a detached object, to a get
    const char* noNewNumber;  ///< to a put
    const char* numberTooLarge;
};

extern const ItemSide columnSide;
extern const ItemSide rowSide;

class ModelItem {
public:
    ModelItem(const ItemSide& side, double upperBound) : side_(side), upperBound_(upperBound) {}

    [[nodiscard]] bool isAttached() const { return static_cast<bool>(model_); }
    [[nodiscard]] const Ref<ITARQModel>& model() const { return model_; }
    /// How the model addresses the column or row.
    [[nodiscard]] Variant address() const { return Variant(modelIndex_); }

    /// For a detached item, which stays so on failure: a model that is none, or what the model says to the address.
    Outcome attach(IUnknown* model, const Variant& address);
    /// Points the item elsewhere without taking a copy; a null model detaches it.
    Outcome point(IUnknown* model, std::int32_t number);
    /// Copies what the model tells and lets go of it. A bound that it doesn't tell stays; the name becomes empty and a
    /// value of the solution 0.
    void detach() noexcept;

    Outcome getNumber(std::int32_t& number) const;
    Outcome putNumber(std::int32_t number);

    Outcome getName(std::string& name) const;
    Outcome putName(const std::string& name);

    Status getLowerBound(double* bound) const { return read(side_.lowerBound, lowerBound_, bound); }
    Status getUpperBound(double* bound) const { return read(side_.upperBound, upperBound_, bound); }
    Outcome putLowerBound(double bound);
    Outcome putUpperBound(double bound);
    /// Detached, without a test.
    Outcome putBounds(double lower, double upper);

    Status getLpValue(double* value) const { return read(side_.lpValue, lpValue_, value); }
    Status getIpValue(double* value) const { return read(side_.ipValue, ipValue_, value); }
    Status getPrice(double* value) const { return read(side_.price, price_, value); }
    Status getStatus(TARQColRowStatusType* value) const { return read(side_.status, status_, value); }

    /// Asks the model, or a detached item's own field.
    template <class Value>
    Status read(ItemSide::Getter<Value> getter, const Value& own, Value* value) const;

    /// Calls `act(model, position)` of an attached item, with a position that the model has.
    template <class Act>
    Status change(const Act& act) const;

private:
    Status changeBounds(const double* lower, const double* upper) const;

    const ItemSide& side_;
    Ref<ITARQModel> model_;
    std::int32_t modelIndex_ = 0;
    std::string name_;
    double lowerBound_ = 0.0;
    double upperBound_;
    double lpValue_ = 0.0;
    double ipValue_ = 0.0;
    double price_ = 0.0;
    TARQColRowStatusType status_ = TARQColRowStatusType::UndefinedVarStatus;
};

template <class Value>
Status ModelItem::read(ItemSide::Getter<Value> getter, const Value& own, Value* value) const {
    if (value == nullptr) return status::nullPointer;
    if (!isAttached()) {
        *value = own;
        return status::ok;
    }
    const Ref<ITARQModel> model = model_;
    return contained([&] { return (model.get()->*getter)(address(), value); });
}

template <class Act>
Status ModelItem::change(const Act& act) const {
    const Ref<ITARQModel> model = model_;
    return contained([&] {
        std::int32_t number = 0;
        // Members that take a position leave its check to their caller.
        const Status found = (model.get()->*side_.number)(address(), &number);
        return found.isOk() ? act(*model, number - 1) : found;
    });
}

}  // namespace tarq
