#include "model/addressing.h"

#include <string>
#include <string_view>

namespace tarq {
namespace {

/// What the two resolvers differ in.
struct AddressedTable {
    std::int32_t (ModelStore::*find)(std::string_view name) const;
    std::int32_t (ModelStore::*count)() const;
    std::string_view nameBefore;
    std::string_view notConvertible;
    std::string_view belowOne;
    std::string_view aboveCount;
};

constexpr AddressedTable columnTable{
    &ModelStore::findColumn,
    &ModelStore::columnCount,
    "Column name '",
    "Col index is not convertible to string or integer.",
    "Column index is less than 1.",
    "Column index is greater than number of columns.",
};
constexpr AddressedTable rowTable{
    &ModelStore::findRow,
    &ModelStore::rowCount,
    "Row name '",
    "Row index must be convertible to string or integer.",
    "Row index is less than 1.",
    "Row index is greater than number of rows.",
};

Outcome resolveName(const AddressedTable& table, const ModelStore& store, const std::string& name,
                    std::int32_t& position) {
    const std::int32_t found = (store.*table.find)(name);
    if (found < 0) {
        return {status::invalidArgument, std::string(table.nameBefore) + name + "' could not be found."};
    }
    position = found;
    return {};
}

Outcome resolve(const AddressedTable& table, const ModelStore& store, const Variant& address, std::int32_t& position) {
    // A plain text needs no copy of its own, as it isn't converted.
    if (address.isText()) return resolveName(table, store, address.text(), position);
    Variant value = address.copyDereferenced();
    if (value.isText()) return resolveName(table, store, value.text(), position);
    // A text that an object gives is neither a name nor a number, since as an address it would be a name.
    const bool isNumber = !value.isObject() || (value.takeDefaultValue() && !value.isText());
    if (!isNumber || !value.toInteger()) return {status::wrongKind, std::string(table.notConvertible)};
    const std::int32_t number = value.integer();
    if (number < 1) return {status::invalidArgument, std::string(table.belowOne)};
    if (number > (store.*table.count)()) return {status::invalidArgument, std::string(table.aboveCount)};
    position = number - 1;
    return {};
}

}  // namespace

Outcome resolveColumn(const ModelStore& store, const Variant& address, std::int32_t& position) {
    return resolve(columnTable, store, address, position);
}

Outcome resolveRow(const ModelStore& store, const Variant& address, std::int32_t& position) {
    return resolve(rowTable, store, address, position);
}

}  // namespace tarq
