#include "modelfiles/modelcutout.h"

#include "frame/result.h"
#include "model/addressing.h"

namespace tarq {
namespace {

using Resolver = Outcome (*)(const ModelStore&, const Variant&, std::int32_t&);

/// Sets `number`, which holds what a missing address means.
Outcome resolve(Resolver resolver, const ModelStore& store, const Variant& address, std::int32_t& number) {
    if (address.copyDereferenced().isMissing()) return {};
    std::int32_t position = 0;
    Outcome outcome = resolver(store, address, position);
    if (outcome.isOk()) number = position + 1;
    return outcome;
}

}  // namespace

Outcome resolveCutout(const ModelStore& store, const CutoutAddresses& addresses, ModelCutout& cutout) {
    ModelCutout found{1, store.rowCount(), 1, store.columnCount()};
    TARQ_TRY(resolve(resolveRow, store, addresses.firstRow, found.firstRow));
    TARQ_TRY(resolve(resolveRow, store, addresses.lastRow, found.lastRow));
    TARQ_TRY(resolve(resolveColumn, store, addresses.firstColumn, found.firstColumn));
    TARQ_TRY(resolve(resolveColumn, store, addresses.lastColumn, found.lastColumn));
    // What an object that is an address has called may have taken rows or columns away.
    if (found.lastRow > store.rowCount() || found.lastColumn > store.columnCount()) {
        return {status::indexOutOfRange, "Index out of valid range."};
    }
    if (found.firstRow > found.lastRow && store.rowCount() > 0) {
        return {status::invalidArgument, "Row startindex is higher than endindex."};
    }
    if (found.firstColumn > found.lastColumn && store.columnCount() > 0) {
        return {status::invalidArgument, "Col startindex is higher than endindex."};
    }
    cutout = found;
    return {};
}

}  // namespace tarq
