// CTARQModel: the hidden members by which families keep their columns and rows.
#include "component/ctarqmodel.h"
#include "model/modeledit.h"

namespace tarq {
namespace {

/// As in the other hidden members, a null pointer leaves the field of the record at what it is.
std::string nameOrNone(const std::string* name) { return name != nullptr ? *name : std::string(); }

}  // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
Status CTARQModel::_AddVarSetElement(const std::string* bsName, IUnknown* family) {
    return guarded([&] { return addFamilyMember<ColumnRecord>(store_, nameOrNone(bsName), family); });
}

Status CTARQModel::_AddResSetElement(const std::string* bsName, IUnknown* family) {
    return guarded([&] { return addFamilyMember<RowRecord>(store_, nameOrNone(bsName), family); });
}

Status CTARQModel::get_VarSetStartIndex(IUnknown* family, std::int32_t* value) {
    return guardedResult(value, [&] { return getFamilyStart<ColumnRecord>(store_, family); });
}

Status CTARQModel::get_ResSetStartIndex(IUnknown* family, std::int32_t* value) {
    return guardedResult(value, [&] { return getFamilyStart<RowRecord>(store_, family); });
}

Status CTARQModel::_ClearTARQVarSet(IUnknown* family) {
    return guarded([&] {
        clearFamily<ColumnRecord>(store_, family);
        return Outcome();
    });
}

Status CTARQModel::_ClearTARQResSet(IUnknown* family) {
    return guarded([&] {
        clearFamily<RowRecord>(store_, family);
        return Outcome();
    });
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
