// Addressing: from the value by which a client names a column or row to a position in the store.
//
// A text is a name, also when it reads as a number; everything else is converted to a number from 1. The address itself
// is never changed. An object is asked for its number, which calls a client: a position that was found before may be
// gone afterwards.
#pragma once

#include <cstdint>

#include "frame/status.h"
#include "frame/variant.h"
#include "model/modelstore.h"

namespace tarq {

/// Sets `position`, 0-based. Fails with 0x80041031 for an unknown name or a number outside the table, and 0x80041016
/// for a value that is neither; `position` is left alone then.
[[nodiscard]] Outcome resolveColumn(const ModelStore& store, const Variant& address, std::int32_t& position);
[[nodiscard]] Outcome resolveRow(const ModelStore& store, const Variant& address, std::int32_t& position);

}  // namespace tarq
