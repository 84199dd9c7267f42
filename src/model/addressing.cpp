#include "model/addressing.h"

#include <string>
#include <string_view>

namespace tarq {
namespace {

template <class Record>
constexpr const SideWords& words = wordsOf(Record::side);

template <class Record>
Result<std::int32_t> resolveName(const ModelStore& store, const std::string& name) {
    const std::int32_t found = store.table<Record>().find(name);
    if (found >= 0) return found;
    return Outcome(status::invalidArgument,
                   std::string(words<Record>.kind).append(" name '").append(name).append("' could not be found."));
}

Outcome outsideTable(std::string_view kind, std::string_view where) {
    return {status::invalidArgument, std::string(kind).append(" index is ").append(where)};
}

}  // namespace

template <class Record>
Result<std::int32_t> resolve(const ModelStore& store, const Variant& address) {
    // A plain text needs no copy of its own, as it isn't converted.
    if (address.isText()) return resolveName<Record>(store, address.text());
    Variant value = address.copyDereferenced();
    if (value.isText()) return resolveName<Record>(store, value.text());
    // A text that an object gives is neither a name nor a number, since as an address it would be a name.
    const bool isNumber = !value.isObject() || (value.takeDefaultValue() && !value.isText());
    if (!isNumber || !value.toInteger()) return Outcome(status::wrongKind, std::string(words<Record>.badAddress));
    const std::int32_t number = value.integer();
    if (number < 1) return outsideTable(words<Record>.kind, "less than 1.");
    if (number > store.table<Record>().count()) {
        return outsideTable(words<Record>.kind,
                            std::string("greater than number of ").append(words<Record>.plural).append("."));
    }
    return number - 1;
}

template Result<std::int32_t> resolve<ColumnRecord>(const ModelStore& store, const Variant& address);
template Result<std::int32_t> resolve<RowRecord>(const ModelStore& store, const Variant& address);

Outcome resolveColumn(const ModelStore& store, const Variant& address, std::int32_t& position) {
    TARQ_ASSIGN(position, resolve<ColumnRecord>(store, address));
    return {};
}

Outcome resolveRow(const ModelStore& store, const Variant& address, std::int32_t& position) {
    TARQ_ASSIGN(position, resolve<RowRecord>(store, address));
    return {};
}

}  // namespace tarq
