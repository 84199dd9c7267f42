// The operations of the object interface by which families keep their columns and rows; modeledit.h tells their rules.
//
// A family adds all its members at once, so they stand next to each other. A null family has no members. `Record` is
// ColumnRecord or RowRecord.
#pragma once

#include <cstdint>
#include <string>

#include "frame/result.h"
#include "model/modelstore.h"
#include "tarq/frame/object.h"
#include "tarq/frame/status.h"

namespace tarq {

/// Adds a member from 0 to infinity. The length of the name isn't tested; one that is taken fails as ModelStore::add
/// does.
template <class Record>
[[nodiscard]] Outcome addFamilyMember(ModelStore& store, const std::string& name, IUnknown* family);

/// Number of the family's first member. When there is none: wrongState for columns, and for rows status::none without
/// a description.
template <class Record>
[[nodiscard]] Result<std::int32_t> getFamilyStart(const ModelStore& store, IUnknown* family);

/// Removes the family's members in one pass; nothing when it has none.
template <class Record>
void clearFamily(ModelStore& store, IUnknown* family);

/// The same with an output, which a failure leaves alone.
[[nodiscard]] Outcome getFamilyColumnStart(const ModelStore& store, IUnknown* family, std::int32_t& number);
[[nodiscard]] Outcome getFamilyRowStart(const ModelStore& store, IUnknown* family, std::int32_t& number);

}  // namespace tarq
