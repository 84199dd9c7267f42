// Index lists: what a client passes where many columns or rows are meant, as positions in the store.
#pragma once

#include <cstdint>
#include <vector>

#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// 0-based positions in the order of the client's list, which may name one twice.
using PositionList = std::vector<std::int32_t>;

enum class IndexedSide { Columns, Rows };

/// Sets `positions` from an array of one dimension or an object, whose values each are a name or a number, or from one
/// name or number. Fails as resolveColumn and resolveRow do, and with invalidArgument where the list can't be read;
/// `positions` is left alone then.
[[nodiscard]] Outcome resolveIndexList(const ModelStore& store, const Variant& indices, IndexedSide side,
                                       PositionList& positions);

}  // namespace tarq
