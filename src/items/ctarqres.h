// CTARQRes: the object behind ITARQRes.
#pragma once

#include "items/itemobject.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqres.h"

namespace tarq {

class CTARQRes final : public ItemObject<CTARQRes, ITARQRes, rowSide, classid::TARQRes> {
public:
    CTARQRes() : ItemObject(0.0) {}

    Status SetLT(double Bound) override;
    Status SetEQ(double Bound) override;
    Status SetGT(double Bound) override;
    Status Sum(const ValueList& CoeffsAndCols) override;
    Status get_Dual(double* value) override { return item_.getPrice(value); }
};

}  // namespace tarq
