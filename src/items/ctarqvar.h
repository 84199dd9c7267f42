// CTARQVar: the object behind ITARQVar.
#pragma once

#include "items/itemobject.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqvar.h"

namespace tarq {

class CTARQVar final : public ItemObject<CTARQVar, ITARQVar, columnSide, classid::TARQVar> {
public:
    CTARQVar() : ItemObject(1e25) {}

    Status Detach() override;
    Status put_LB(double value) override;
    Status put_UB(double value) override;
    Status get_Cost(double* value) override;
    Status put_Cost(double value) override;
    Status get_Type(TARQColType* value) override;
    Status put_Type(TARQColType value) override;
    Status get_RedCost(double* value) override { return item_.getPrice(value); }

private:
    [[nodiscard]] bool isDetachedBinary() const { return !item_.isAttached() && type_ == TARQColType::Binary; }

    double cost_ = 0.0;
    TARQColType type_ = TARQColType::Continuous;
};

}  // namespace tarq
