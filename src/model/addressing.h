// Addressing: from the value by which a client names a column or row to a position in the store.
//
// A text is a name, also when it reads as a number; everything else is converted to a number from 1. The address itself
// is never changed. An object is asked for its number, which calls a client: a position that was found before may be
// gone afterwards.
#pragma once

#include <cstdint>

#include "frame/result.h"
#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// The 0-based position of a column or row; `Record` is ColumnRecord or RowRecord. Fails with invalidArgument for an
/// unknown name or a number outside the table, and wrongKind for a value that is neither.
template <class Record>
[[nodiscard]] Result<std::int32_t> resolve(const ModelStore& store, const Variant& address);

/// The same with an output, which a failure leaves alone.
[[nodiscard]] Outcome resolveColumn(const ModelStore& store, const Variant& address, std::int32_t& position);
[[nodiscard]] Outcome resolveRow(const ModelStore& store, const Variant& address, std::int32_t& position);

}  // namespace tarq
