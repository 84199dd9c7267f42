// CTARQModel: members that take and make column and row objects.
//
// An object may be anybody's: it is asked through its interface alone, before anything is stored, and a failure of its
// own is passed on. What it calls may even change the model, so that no record is held over a call to it.
#include <string>
#include <utility>

#include "component/ctarqmodel.h"
#include "frame/result.h"
#include "interfaces/sides.h"
#include "items/ctarqres.h"
#include "items/ctarqvar.h"
#include "model/addressing.h"
#include "model/modeledit.h"

namespace tarq {
namespace {

template <class Record>
struct ItemObject;
template <>
struct ItemObject<ColumnRecord> {
    using Interface = ITARQVar;
    using Class = CTARQVar;
};
template <>
struct ItemObject<RowRecord> {
    using Interface = ITARQRes;
    using Class = CTARQRes;
};

template <class Record>
using InterfaceOf = typename ItemObject<Record>::Interface;

template <class Record>
constexpr const SideWords& words = wordsOf(Record::side);

Status read(ITARQVar& object, ColumnRecord& record) {
    TARQ_TRY(object.get_LB(&record.lowerBound));
    TARQ_TRY(object.get_UB(&record.upperBound));
    TARQ_TRY(object.get_Cost(&record.cost));
    return object.get_Type(&record.type);
}

Status read(ITARQRes& object, RowRecord& record) {
    TARQ_TRY(object.get_LB(&record.lowerBound));
    return object.get_UB(&record.upperBound);
}

ItemChange changeTo(const ColumnRecord& record) {
    return {
        .lowerBound = &record.lowerBound, .upperBound = &record.upperBound, .type = &record.type, .cost = &record.cost};
}

ItemChange changeTo(const RowRecord& record) {
    return {.lowerBound = &record.lowerBound, .upperBound = &record.upperBound};
}

template <class Record>
Ref<InterfaceOf<Record>> asked(IUnknown* object) {
    return Ref<IUnknown>(object).query<InterfaceOf<Record>>();
}

/// Makes an object stand for a column or row; where it stood before, it takes a copy of that first.
template <class Object>
Status pointAt(Object& object, ITARQModel& model, std::int32_t number) {
    // The object may be the last to hold this model, and lets go of it for a moment.
    const Ref<ITARQModel> held(&model);
    TARQ_TRY(object.Detach());
    return object.SetITARQModel(&model, number);
}

template <class Record>
Outcome addItem(ITARQModel& model, ModelStore& store, IUnknown* given) {
    const auto object = asked<Record>(given);
    if (!object) {
        return {status::wrongClass, std::string("Passed object is no ").append(words<Record>.itemClass).append(".")};
    }
    Record record;
    TARQ_TRY(read(*object, record));
    TARQ_TRY(object->get_Name(&record.name));
    TARQ_TRY(store.add(std::move(record)));
    return pointAt(*object, model, store.table<Record>().count());
}

template <class Record>
Outcome attachItem(ITARQModel& model, const ModelStore& store, IUnknown* given, const Variant& address) {
    TARQ_ASSIGN(const std::int32_t position, resolve<Record>(store, address));
    const auto object = asked<Record>(given);
    if (!object) return {status::wrongClass, std::string(words<Record>.nothingToAttach)};
    return pointAt(*object, model, position + 1);
}

template <class Record>
Result<Ref<IUnknown>> makeItem(ITARQModel& model, const ModelStore& store, const Variant& address) {
    TARQ_ASSIGN(const std::int32_t position, resolve<Record>(store, address));
    void* made = nullptr;
    if (!createInstance<typename ItemObject<Record>::Class>(nullptr, IDispatch::id, &made).isOk()) {
        return status::outOfMemory;
    }
    Ref<IUnknown> object = Ref<IUnknown>::adopt(static_cast<IDispatch*>(made));
    TARQ_TRY(attachItem<Record>(model, store, object.get(), Variant(position + 1)));
    return object;
}

template <class Record>
Outcome copyItem(ModelStore& store, const Variant& address, IUnknown* given) {
    TARQ_ASSIGN(const std::int32_t position, resolve<Record>(store, address));
    const bool keepsName = store.table<Record>()[position].family != nullptr;
    const auto object = asked<Record>(given);
    if (!object) {
        return {status::wrongState,
                std::string("Only ").append(words<Record>.itemClass).append(" objects allowed as argument.")};
    }
    Record record;
    if (!keepsName) {
        TARQ_TRY(object->get_Name(&record.name));
    }
    TARQ_TRY(read(*object, record));
    if (!keepsName) {
        TARQ_TRY(store.rename<Record>(position, record.name));
    }
    return changeItem<Record>(store, position, changeTo(record));
}

}  // namespace

Status CTARQModel::AddVar(IUnknown* TARQVar) {
    return guarded([&] { return addItem<ColumnRecord>(*this, store_, TARQVar); });
}

Status CTARQModel::AddRes(IUnknown* TARQRes) {
    return guarded([&] { return addItem<RowRecord>(*this, store_, TARQRes); });
}

Status CTARQModel::AttachVar(IUnknown* TARQVar, const Variant& Index) {
    return guarded([&] { return attachItem<ColumnRecord>(*this, store_, TARQVar, Index); });
}

Status CTARQModel::AttachRes(IUnknown* TARQRes, const Variant& Index) {
    return guarded([&] { return attachItem<RowRecord>(*this, store_, TARQRes, Index); });
}

Status CTARQModel::get_Var(const Variant& Index, Ref<IUnknown>* value) {
    return guardedResult(value, [&] { return makeItem<ColumnRecord>(*this, store_, Index); });
}

Status CTARQModel::get_Res(const Variant& Index, Ref<IUnknown>* value) {
    return guardedResult(value, [&] { return makeItem<RowRecord>(*this, store_, Index); });
}

Status CTARQModel::put_Var(const Variant& Index, IUnknown* value) {
    return guarded([&] { return copyItem<ColumnRecord>(store_, Index, value); });
}

Status CTARQModel::put_Res(const Variant& Index, IUnknown* value) {
    return guarded([&] { return copyItem<RowRecord>(store_, Index, value); });
}

}  // namespace tarq
