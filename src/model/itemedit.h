// The operations of the object interface on columns and rows, together their side's items; modeledit.h tells the rules
// they share.
//
// Both sides alike, `Record` is ColumnRecord or RowRecord. An address is resolved as in addressing.h and fails as it
// does there; a number or position outside the table is indexOutOfRange.
#pragma once

#include <cstdint>
#include <string>

#include "frame/result.h"
#include "model/addressing.h"
#include "model/modelstore.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

/// Fields to change; a null pointer leaves a field alone. Rows have no type and no cost.
struct ItemChange {
    const double* lowerBound = nullptr;
    const double* upperBound = nullptr;
    const TARQColType* type = nullptr;
    const double* cost = nullptr;
    const std::string* name = nullptr;
};

/// Adds a column behind the last one. Bounds in the wrong order are boundOrder; they are clamped to infinity, the cost
/// isn't. A Binary column gets bounds 0 and 1. A missing cost is 0.0, a missing name is none, and a number as name
/// becomes its text; a value that can't is wrongKind. badColumnName for a name that is taken or longer than
/// `longestItemName`.
[[nodiscard]] Outcome addColumn(ModelStore& store, double lowerBound, double upperBound, TARQColType type,
                                const Variant& cost, const Variant& name);
/// Adds a row behind the last one, likewise; badRowName for a name that is taken or too long.
[[nodiscard]] Outcome addRow(ModelStore& store, double lowerBound, double upperBound, const Variant& name);
/// Deletes an item with its nonzeros. A member of a family is invalidArgument.
template <class Record>
[[nodiscard]] Outcome deleteItem(ModelStore& store, const Variant& address);
/// Changes the item at a 0-based position. A failure keeps what was changed before it, in the order type, bounds, cost,
/// name; and a name that is taken leaves the item without a name. Members of families may be renamed here.
template <class Record>
[[nodiscard]] Outcome changeItem(ModelStore& store, std::int32_t position, const ItemChange& change);

/// By plain number. Renaming a member of a family is invalidArgument; a name that is taken leaves the item without one.
template <class Record>
[[nodiscard]] Result<std::string> getItemName(const ModelStore& store, std::int32_t number);
template <class Record>
[[nodiscard]] Outcome putItemName(ModelStore& store, std::int32_t number, const std::string& name);

/// The public number of an item that is given by name or number.
template <class Record>
[[nodiscard]] Result<std::int32_t> getItemNumber(const ModelStore& store, const Variant& address);

/// One field of the item at an address.
template <class Record, class Value>
[[nodiscard]] Result<Value> getField(const ModelStore& store, const Variant& address, Value Record::*field) {
    TARQ_ASSIGN(const std::int32_t position, resolve<Record>(store, address));
    return store.table<Record>()[position].*field;
}
/// Bounds are compared as given, with boundOrder, and stored clamped. The type of a column isn't looked at.
template <class Record>
[[nodiscard]] Outcome putLowerBound(ModelStore& store, const Variant& address, double bound);
template <class Record>
[[nodiscard]] Outcome putUpperBound(ModelStore& store, const Variant& address, double bound);
/// The cost is stored as it stands.
[[nodiscard]] Outcome putColumnCost(ModelStore& store, const Variant& column, double cost);
/// Binary sets the bounds to 0 and 1. invalidArgument for a type that isn't published.
[[nodiscard]] Outcome putColumnType(ModelStore& store, const Variant& column, TARQColType type);

}  // namespace tarq
