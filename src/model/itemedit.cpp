#include "model/itemedit.h"

#include <utility>

#include "interfaces/commonfailures.h"
#include "interfaces/sides.h"
#include "tarq/interfaces/limits.h"

namespace tarq {
namespace {

template <class Record>
constexpr const SideWords& words = wordsOf(Record::side);

bool isPublishedType(TARQColType type) {
    return type == TARQColType::Continuous || type == TARQColType::Integer || type == TARQColType::Binary;
}

void setType(ColumnRecord& column, TARQColType type) {
    column.type = type;
    if (type != TARQColType::Binary) return;
    column.lowerBound = 0.0;
    column.upperBound = 1.0;
}

Result<double> readCost(const Variant& argument) {
    Variant value = argument.copyDereferenced();
    if (value.isMissing()) return 0.0;
    if (!value.toReal()) return Outcome(status::wrongKind, "Value for cost is of wrong variant type");
    return value.real();
}

/// A client's name argument as text: missing is none, a number its text.
template <class Record>
Result<std::string> readName(const Variant& argument) {
    const auto fails = [](Status status, std::string_view text) {
        return Outcome(status, std::string(words<Record>.shortKind).append(text));
    };
    Variant value = argument.copyDereferenced();
    if (value.isMissing()) return std::string();
    if (!value.isScalarKind() || !value.toText()) return fails(status::wrongKind, " name is of wrong variant type");
    if (value.text().size() > longestItemName) return fails(words<Record>.badName, " name is too long.");
    return value.takeText();
}

/// Gives `record` the bounds that aren't null, clamped. Both stay when lower would lie above upper.
template <class Record>
Outcome changeBounds(const ModelStore& store, Record& record, const ItemChange& change) {
    const double lower = change.lowerBound != nullptr ? store.clampToInfinity(*change.lowerBound) : record.lowerBound;
    const double upper = change.upperBound != nullptr ? store.clampToInfinity(*change.upperBound) : record.upperBound;
    if constexpr (Record::side == ModelSide::Column) {
        const bool isBinary = record.type == TARQColType::Binary;
        if (isBinary && lower != 0.0) return {status::invalidArgument, "Columns of type 'Binary' must have LB=0."};
        if (isBinary && upper != 1.0) return {status::invalidArgument, "Columns of type 'Binary' must have UB=1."};
    }
    if (lower > upper) return failures::boundOrder();
    record.lowerBound = lower;
    record.upperBound = upper;
    return {};
}

/// Lets `edit` change the item at an address while the gate is held.
template <class Record, class Edit>
Outcome editItem(ModelStore& store, const Variant& address, const Edit& edit) {
    TARQ_ASSIGN(const std::int32_t position, resolve<Record>(store, address));
    const auto held = store.gate().edit();
    return edit(store.record<Record>(position));
}

template <class Record>
bool holdsNumber(const ModelStore& store, std::int32_t number) {
    return number >= 1 && store.table<Record>().holds(number - 1);
}

}  // namespace

Outcome addColumn(ModelStore& store, double lowerBound, double upperBound, TARQColType type, const Variant& cost,
                  const Variant& name) {
    if (upperBound < lowerBound) return failures::boundOrder();
    const bool isBinary = type == TARQColType::Binary;
    ColumnRecord column;
    column.lowerBound = store.clampToInfinity(isBinary ? 0.0 : lowerBound);
    column.upperBound = store.clampToInfinity(isBinary ? 1.0 : upperBound);
    column.type = type;
    TARQ_ASSIGN(column.cost, readCost(cost));
    TARQ_ASSIGN(column.name, readName<ColumnRecord>(name));
    return store.add(std::move(column));
}

Outcome addRow(ModelStore& store, double lowerBound, double upperBound, const Variant& name) {
    if (upperBound < lowerBound) return failures::boundOrder();
    RowRecord row;
    row.lowerBound = store.clampToInfinity(lowerBound);
    row.upperBound = store.clampToInfinity(upperBound);
    TARQ_ASSIGN(row.name, readName<RowRecord>(name));
    // Clients know this text without the name, unlike the one for columns.
    if (!store.add(std::move(row)).isOk()) return {status::badRowName, "Duplicate row name."};
    return {};
}

template <class Record>
Outcome deleteItem(ModelStore& store, const Variant& address) {
    TARQ_ASSIGN(const std::int32_t position, resolve<Record>(store, address));
    if (store.table<Record>()[position].family != nullptr) {
        return {status::invalidArgument, std::string(words<Record>.keptByFamily)};
    }
    store.remove<Record>(position + 1, position + 1);
    return {};
}

template <class Record>
Outcome changeItem(ModelStore& store, std::int32_t position, const ItemChange& change) {
    if (!store.table<Record>().holds(position)) return failures::indexRange();
    const auto held = store.gate().edit();
    Record& record = store.record<Record>(position);
    if constexpr (Record::side == ModelSide::Column) {
        if (change.type != nullptr) {
            if (!isPublishedType(*change.type)) {
                return {status::invalidArgument, "Invalid type. Column index: " + std::to_string(position + 1)};
            }
            setType(record, *change.type);
        }
    }
    if (change.lowerBound != nullptr || change.upperBound != nullptr) {
        TARQ_TRY(changeBounds(store, record, change));
    }
    if constexpr (Record::side == ModelSide::Column) {
        if (change.cost != nullptr) record.cost = *change.cost;
    }
    return change.name != nullptr ? store.rename<Record>(position, *change.name) : Outcome();
}

template <class Record>
Result<std::string> getItemName(const ModelStore& store, std::int32_t number) {
    if (!holdsNumber<Record>(store, number)) return failures::indexRange();
    return store.table<Record>()[number - 1].name;
}

template <class Record>
Outcome putItemName(ModelStore& store, std::int32_t number, const std::string& name) {
    if (!holdsNumber<Record>(store, number)) return failures::indexRange();
    if (store.table<Record>()[number - 1].family != nullptr) {
        return {status::invalidArgument, std::string("Name could not be changed, because specified ")
                                             .append(words<Record>.kindInside)
                                             .append(" is part of a ")
                                             .append(words<Record>.familyClass)
                                             .append(".")};
    }
    return store.rename<Record>(number - 1, name);
}

template <class Record>
Result<std::int32_t> getItemNumber(const ModelStore& store, const Variant& address) {
    TARQ_ASSIGN(const std::int32_t position, resolve<Record>(store, address));
    return position + 1;
}

template <class Record>
Outcome putLowerBound(ModelStore& store, const Variant& address, double bound) {
    return editItem<Record>(store, address, [&](Record& record) {
        if (bound > record.upperBound) return failures::boundOrder();
        record.lowerBound = store.clampToInfinity(bound);
        return Outcome();
    });
}

template <class Record>
Outcome putUpperBound(ModelStore& store, const Variant& address, double bound) {
    return editItem<Record>(store, address, [&](Record& record) {
        if (bound < record.lowerBound) return failures::boundOrder();
        record.upperBound = store.clampToInfinity(bound);
        return Outcome();
    });
}

Outcome putColumnCost(ModelStore& store, const Variant& column, double cost) {
    return editItem<ColumnRecord>(store, column, [&](ColumnRecord& record) {
        record.cost = cost;
        return Outcome();
    });
}

Outcome putColumnType(ModelStore& store, const Variant& column, TARQColType type) {
    return editItem<ColumnRecord>(store, column, [&](ColumnRecord& record) -> Outcome {
        if (!isPublishedType(type)) return {status::invalidArgument, "Bad value for type."};
        setType(record, type);
        return {};
    });
}

template Outcome deleteItem<ColumnRecord>(ModelStore& store, const Variant& address);
template Outcome deleteItem<RowRecord>(ModelStore& store, const Variant& address);
template Outcome changeItem<ColumnRecord>(ModelStore& store, std::int32_t position, const ItemChange& change);
template Outcome changeItem<RowRecord>(ModelStore& store, std::int32_t position, const ItemChange& change);
template Result<std::string> getItemName<ColumnRecord>(const ModelStore& store, std::int32_t number);
template Result<std::string> getItemName<RowRecord>(const ModelStore& store, std::int32_t number);
template Outcome putItemName<ColumnRecord>(ModelStore& store, std::int32_t number, const std::string& name);
template Outcome putItemName<RowRecord>(ModelStore& store, std::int32_t number, const std::string& name);
template Result<std::int32_t> getItemNumber<ColumnRecord>(const ModelStore& store, const Variant& address);
template Result<std::int32_t> getItemNumber<RowRecord>(const ModelStore& store, const Variant& address);
template Outcome putLowerBound<ColumnRecord>(ModelStore& store, const Variant& address, double bound);
template Outcome putLowerBound<RowRecord>(ModelStore& store, const Variant& address, double bound);
template Outcome putUpperBound<ColumnRecord>(ModelStore& store, const Variant& address, double bound);
template Outcome putUpperBound<RowRecord>(ModelStore& store, const Variant& address, double bound);

}  // namespace tarq
