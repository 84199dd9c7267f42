// The operations of the object interface by which families keep their columns and rows; modeledit.h tells their rules.
//
// A family adds all its members at once, so they stand next to each other. A null family has no members.
#pragma once

#include <cstdint>
#include <string>

#include "model/modelstore.h"
#include "tarq/frame/object.h"
#include "tarq/frame/status.h"

namespace tarq {

/// Adds a column from 0 to infinity, or a row with these bounds. The length of the name isn't tested.
[[nodiscard]] Outcome addFamilyColumn(ModelStore& store, const std::string& name, IUnknown* family);
[[nodiscard]] Outcome addFamilyRow(ModelStore& store, const std::string& name, IUnknown* family);

/// Number of the family's first column. When there is none: wrongState.
[[nodiscard]] Outcome getFamilyColumnStart(const ModelStore& store, IUnknown* family, std::int32_t& number);
/// Number of the family's first row. When there is none: status 1 without a description.
[[nodiscard]] Outcome getFamilyRowStart(const ModelStore& store, IUnknown* family, std::int32_t& number);

/// Removes the family's columns or rows in one pass; nothing when it has none.
void clearFamilyColumns(ModelStore& store, IUnknown* family);
void clearFamilyRows(ModelStore& store, IUnknown* family);

}  // namespace tarq
