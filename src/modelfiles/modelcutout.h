// Which part of a model a client wants to see, from the addresses that it passes.
#pragma once

#include "frame/result.h"
#include "modelfiles/modelwriter.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// The addresses of the first and the last row and column, each a number, a name or missing.
struct CutoutAddresses {
    const Variant& firstRow;
    const Variant& lastRow;
    const Variant& firstColumn;
    const Variant& lastColumn;
};

/// The part that the addresses tell: a missing first one means 1 and a missing last one the count. Fails as the
/// addressing does, and with invalidArgument when a first one lies behind its last one. A model without rows or columns
/// has none to cut out: with both missing that is an empty range and no failure.
[[nodiscard]] Result<ModelCutout> resolveCutout(const ModelStore& store, const CutoutAddresses& addresses);

}  // namespace tarq
