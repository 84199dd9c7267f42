// ItemObject: the members that ITARQVar and ITARQRes share.
#pragma once

#include "frame/memberguard.h"
#include "frame/result.h"
#include "items/modelitem.h"
#include "tarq/frame/countedobject.h"

namespace tarq {

/// Implements them for `Class`, which offers `Interface` and stands for items of `side`. Failures are raised as those
/// of the class `classId`.
template <class Class, class Interface, const ItemSide& side, const Guid& classId>
class ItemObject : public CountedObject<Class, Interface> {
public:
    Status Attach(IUnknown* TARQModel, const Variant& address) override {
        // The object itself may be what keeps its next model alive.
        const Ref<IUnknown> given(TARQModel);
        TARQ_TRY(this->Detach());
        return guarded(classId, [&] { return item_.attach(TARQModel, address); });
    }
    Status Detach() override {
        if (item_.isAttached()) item_.detach();
        return status::ok;
    }
    Status SetITARQModel(IUnknown* ITARQModel, std::int32_t number) override {
        return guarded(classId, [&] { return item_.point(ITARQModel, number); });
    }

    Status get_LB(double* value) override { return item_.getLowerBound(value); }
    Status put_LB(double value) override {
        return guarded(classId, [&] { return item_.putLowerBound(value); });
    }
    Status get_UB(double* value) override { return item_.getUpperBound(value); }
    Status put_UB(double value) override {
        return guarded(classId, [&] { return item_.putUpperBound(value); });
    }
    Status get_Name(std::string* value) override {
        if (value == nullptr) return status::nullPointer;
        return guarded(classId, [&] { return item_.getName(*value); });
    }
    Status put_Name(const std::string& value) override {
        return guarded(classId, [&] { return item_.putName(value); });
    }
    Status get_LPSol(double* value) override { return item_.getLpValue(value); }
    Status get_IPSol(double* value) override { return item_.getIpValue(value); }
    Status get_Status(TARQColRowStatusType* value) override { return item_.getStatus(value); }
    Status get_ModelIndex(std::int32_t* value) override {
        if (value == nullptr) return status::nullPointer;
        return guarded(classId, [&] { return item_.getNumber(*value); });
    }
    Status put_ModelIndex(std::int32_t value) override {
        return guarded(classId, [&] { return item_.putNumber(value); });
    }
    Status get_IsAttached(std::int32_t* value) override {
        return guardedGet(value, [&] { return item_.isAttached() ? 1 : 0; });
    }
    Status get_Parent(Ref<IUnknown>* value) override {
        return guardedGet(value, [&] { return Ref<IUnknown>(item_.model().get()); });
    }

protected:
    explicit ItemObject(double upperBound) : item_(side, upperBound) {}
    ~ItemObject() = default;

    ModelItem item_;
};

}  // namespace tarq
