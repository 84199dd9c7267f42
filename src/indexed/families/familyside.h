// FamilySide: what families of columns and families of rows differ in, as data.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tarq/frame/guid.h"
#include "tarq/frame/object.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/enumerations.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {

/// A model's property of the column or row at an address.
template <class Value>
using MemberGet = Status (ITARQModel::*)(const Variant& address, Value* value);
/// Changes a field of the column or row at a 0-based position to a value of the kind that belongs to the field.
using MemberChange = Status (*)(ITARQModel& model, std::int32_t position, const Variant& value);

struct FamilySide {
    const Guid& classId;
    std::string_view className;
    std::string_view onlyObjects;  ///< how the put of anything but a member object is refused
    std::string_view onlyOne;      ///< how indices that don't select one member are refused

    Status (ITARQModel::*add)(const std::string* name, IUnknown* family);
    Status (ITARQModel::*start)(IUnknown* family, std::int32_t* number);
    Status (ITARQModel::*clear)(IUnknown* family);
    Status (ITARQModel::*numberOf)(const Variant& address, std::int32_t* number);
    Status (ITARQModel::*object)(const Variant& address, Ref<IUnknown>* object);

    MemberGet<double> lowerBound;
    MemberGet<double> upperBound;
    MemberGet<TARQColRowStatusType> status;
    MemberGet<double> ipValue;
    MemberGet<double> lpValue;

    MemberChange changeLower;
    MemberChange changeUpper;
    Status (*rename)(ITARQModel& model, std::int32_t position, const std::string& name);
    /// Copies the fields of a member object; false, without a copy, when the object is none.
    bool (*copyFrom)(ITARQModel& model, std::int32_t position, const Ref<IUnknown>& object, Status& copied);
};

extern const FamilySide columnFamilies;
extern const FamilySide rowFamilies;

}  // namespace tarq
