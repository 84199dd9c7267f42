#include "model/familyedit.h"

#include <utility>

#include "interfaces/sides.h"

namespace tarq {

template <class Record>
Outcome addFamilyMember(ModelStore& store, const std::string& name, IUnknown* family) {
    Record record;
    record.name = name;
    record.upperBound = store.infinity();
    record.family = FamilyMark::of(family);
    return store.add(std::move(record));
}

template <class Record>
Result<std::int32_t> getFamilyStart(const ModelStore& store, IUnknown* family) {
    constexpr const SideWords& words = wordsOf(Record::side);
    const std::int32_t first = store.table<Record>().findFamily(FamilyMark::of(family));
    if (first < 0) return Outcome(words.noFamily, std::string(words.noFamilyMessage));
    return first + 1;
}

template <class Record>
void clearFamily(ModelStore& store, IUnknown* family) {
    const RecordTable<Record>& table = store.table<Record>();
    const std::int32_t first = table.findFamily(FamilyMark::of(family));
    if (first < 0) return;
    std::int32_t end = first + 1;
    while (table.holds(end) && table[end].family == table[first].family) ++end;
    store.remove<Record>(first + 1, end);
}

template Outcome addFamilyMember<ColumnRecord>(ModelStore& store, const std::string& name, IUnknown* family);
template Outcome addFamilyMember<RowRecord>(ModelStore& store, const std::string& name, IUnknown* family);
template Result<std::int32_t> getFamilyStart<ColumnRecord>(const ModelStore& store, IUnknown* family);
template Result<std::int32_t> getFamilyStart<RowRecord>(const ModelStore& store, IUnknown* family);
template void clearFamily<ColumnRecord>(ModelStore& store, IUnknown* family);
template void clearFamily<RowRecord>(ModelStore& store, IUnknown* family);

Outcome getFamilyColumnStart(const ModelStore& store, IUnknown* family, std::int32_t& number) {
    TARQ_ASSIGN(number, getFamilyStart<ColumnRecord>(store, family));
    return {};
}

Outcome getFamilyRowStart(const ModelStore& store, IUnknown* family, std::int32_t& number) {
    TARQ_ASSIGN(number, getFamilyStart<RowRecord>(store, family));
    return {};
}

}  // namespace tarq
