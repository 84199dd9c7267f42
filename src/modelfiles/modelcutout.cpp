#include "modelfiles/modelcutout.h"

#include "model/addressing.h"

namespace tarq {
namespace {

using Resolver = Outcome (*)(const ModelStore&, const Variant&, std::int32_t&);

/// Sets `number`, which holds what a missing address means.
Outcome resolve(Resolver resolver, const ModelStore& store, const Variant& address, std::int32_t& number) {
    if (address.copyDereferenced().isMissing()) return {};
    std::int32_t position = 0;
    TARQ_TRY(resolver(store, address, position));
    number = position + 1;
    return {};
}

}  // namespace

Result<ModelCutout> resolveCutout(const ModelStore& store, const CutoutAddresses& addresses) {
    ModelCutout found{1, store.rowCount(), 1, store.columnCount()};
    TARQ_TRY(resolve(resolveRow, store, addresses.firstRow, found.firstRow));
    TARQ_TRY(resolve(resolveRow, store, addresses.lastRow, found.lastRow));
    TARQ_TRY(resolve(resolveColumn, store, addresses.firstColumn, found.firstColumn));
    TARQ_TRY(resolve(resolveColumn, store, addresses.lastColumn, found.lastColumn));
    // What an object that is an address has called may have taken rows or columns away.
    if (found.lastRow > store.rowCount() || found.lastColumn > store.columnCount()) {
        return Outcome(status::indexOutOfRange, "Index out of valid range.");
    }
    if (found.firstRow > found.lastRow && store.rowCount() > 0) {
        return Outcome(status::invalidArgument, "Row startindex is higher than endindex.");
    }
    if (found.firstColumn > found.lastColumn && store.columnCount() > 0) {
        return Outcome(status::invalidArgument, "Col startindex is higher than endindex.");
    }
    return found;
}

}  // namespace tarq
