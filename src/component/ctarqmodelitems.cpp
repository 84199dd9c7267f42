// CTARQModel: members that take and make column and row objects.
//
// An object may be anybody's: it is asked through its interface alone, before anything is stored, and a failure of its
// own is passed on. What it calls may even change the model, so that no record is held over a call to it.
#include <string>
#include <utility>

#include "component/ctarqmodel.h"
#include "frame/memberguard.h"
#include "frame/result.h"
#include "items/ctarqres.h"
#include "items/ctarqvar.h"
#include "model/addressing.h"
#include "model/modeledit.h"

namespace tarq {
namespace {

/// The one or the other side of the model, and the words of its failures.
struct Columns {
    using Object = ITARQVar;
    using Class = CTARQVar;
    using Record = ColumnRecord;
    static constexpr const char* notToAdd = "Passed object is no TARQVar.";
    static constexpr const char* notToAttach = "Passed object is no TARQVar.";
    static constexpr const char* notToCopy = "Only TARQVar objects allowed as argument.";

    static Outcome resolve(const ModelStore& store, const Variant& address, std::int32_t& position) {
        return resolveColumn(store, address, position);
    }
    static std::int32_t count(const ModelStore& store) { return store.columnCount(); }
    static bool isOfFamily(const ModelStore& store, std::int32_t position) {
        return store.column(position).family != nullptr;
    }
    static Outcome add(ModelStore& store, Record record) { return store.addColumnRecord(std::move(record)); }
    static Outcome rename(ModelStore& store, std::int32_t position, const std::string& name) {
        return store.renameColumn(position, name);
    }
    static Status read(ITARQVar& object, ColumnRecord& record) {
        TARQ_TRY(object.get_LB(&record.lowerBound));
        TARQ_TRY(object.get_UB(&record.upperBound));
        TARQ_TRY(object.get_Cost(&record.cost));
        return object.get_Type(&record.type);
    }
    static Outcome change(ModelStore& store, std::int32_t position, const ColumnRecord& record) {
        return changeColumn(store, position,
                            {.lowerBound = &record.lowerBound,
                             .upperBound = &record.upperBound,
                             .type = &record.type,
                             .cost = &record.cost,
                             .name = nullptr});
    }
};

struct Rows {
    using Object = ITARQRes;
    using Class = CTARQRes;
    using Record = RowRecord;
    static constexpr const char* notToAdd = "Passed object is no TARQRes.";
    static constexpr const char* notToAttach = "Passed object is no TARQRes";
    static constexpr const char* notToCopy = "Only TARQRes objects allowed as argument.";

    static Outcome resolve(const ModelStore& store, const Variant& address, std::int32_t& position) {
        return resolveRow(store, address, position);
    }
    static std::int32_t count(const ModelStore& store) { return store.rowCount(); }
    static bool isOfFamily(const ModelStore& store, std::int32_t position) {
        return store.row(position).family != nullptr;
    }
    static Outcome add(ModelStore& store, Record record) { return store.addRowRecord(std::move(record)); }
    static Outcome rename(ModelStore& store, std::int32_t position, const std::string& name) {
        return store.renameRow(position, name);
    }
    static Status read(ITARQRes& object, RowRecord& record) {
        TARQ_TRY(object.get_LB(&record.lowerBound));
        return object.get_UB(&record.upperBound);
    }
    static Outcome change(ModelStore& store, std::int32_t position, const RowRecord& record) {
        return changeRow(store, position,
                         {.lowerBound = &record.lowerBound, .upperBound = &record.upperBound, .name = nullptr});
    }
};

template <class Side>
Ref<typename Side::Object> asked(IUnknown* object) {
    return Ref<IUnknown>(object).query<typename Side::Object>();
}

/// Makes an object stand for a column or row; where it stood before, it takes a copy of that first.
template <class Object>
Status pointAt(Object& object, ITARQModel& model, std::int32_t number) {
    // The object may be the last to hold this model, and lets go of it for a moment.
    const Ref<ITARQModel> held(&model);
    TARQ_TRY(object.Detach());
    return object.SetITARQModel(&model, number);
}

template <class Side>
Outcome addItem(ITARQModel& model, ModelStore& store, IUnknown* given) {
    const auto object = asked<Side>(given);
    if (!object) return {status::wrongClass, Side::notToAdd};
    typename Side::Record record;
    TARQ_TRY(Side::read(*object, record));
    TARQ_TRY(object->get_Name(&record.name));
    TARQ_TRY(Side::add(store, std::move(record)));
    return pointAt(*object, model, Side::count(store));
}

template <class Side>
Outcome attachItem(ITARQModel& model, const ModelStore& store, IUnknown* given, const Variant& address) {
    std::int32_t position = 0;
    TARQ_TRY(Side::resolve(store, address, position));
    const auto object = asked<Side>(given);
    if (!object) return {status::wrongClass, Side::notToAttach};
    return pointAt(*object, model, position + 1);
}

template <class Side>
Outcome makeItem(ITARQModel& model, const ModelStore& store, const Variant& address, Ref<IUnknown>& value) {
    std::int32_t position = 0;
    TARQ_TRY(Side::resolve(store, address, position));
    void* made = nullptr;
    if (!createInstance<typename Side::Class>(nullptr, IDispatch::id, &made).isOk()) return status::outOfMemory;
    Ref<IUnknown> object = Ref<IUnknown>::adopt(static_cast<IDispatch*>(made));
    TARQ_TRY(attachItem<Side>(model, store, object.get(), Variant(position + 1)));
    value = std::move(object);
    return {};
}

template <class Side>
Outcome copyItem(ModelStore& store, const Variant& address, IUnknown* given) {
    std::int32_t position = 0;
    TARQ_TRY(Side::resolve(store, address, position));
    const bool keepsName = Side::isOfFamily(store, position);
    const auto object = asked<Side>(given);
    if (!object) return {status::wrongState, Side::notToCopy};
    typename Side::Record record;
    if (!keepsName) {
        TARQ_TRY(object->get_Name(&record.name));
    }
    TARQ_TRY(Side::read(*object, record));
    if (!keepsName) {
        TARQ_TRY(Side::rename(store, position, record.name));
    }
    return Side::change(store, position, record);
}

}  // namespace

Status CTARQModel::AddVar(IUnknown* TARQVar) {
    return guarded(classid::TARQModel, [&] { return addItem<Columns>(*this, store_, TARQVar); });
}

Status CTARQModel::AddRes(IUnknown* TARQRes) {
    return guarded(classid::TARQModel, [&] { return addItem<Rows>(*this, store_, TARQRes); });
}

Status CTARQModel::AttachVar(IUnknown* TARQVar, const Variant& Index) {
    return guarded(classid::TARQModel, [&] { return attachItem<Columns>(*this, store_, TARQVar, Index); });
}

Status CTARQModel::AttachRes(IUnknown* TARQRes, const Variant& Index) {
    return guarded(classid::TARQModel, [&] { return attachItem<Rows>(*this, store_, TARQRes, Index); });
}

Status CTARQModel::get_Var(const Variant& Index, Ref<IUnknown>* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return makeItem<Columns>(*this, store_, Index, *value); });
}

Status CTARQModel::get_Res(const Variant& Index, Ref<IUnknown>* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded(classid::TARQModel, [&] { return makeItem<Rows>(*this, store_, Index, *value); });
}

Status CTARQModel::put_Var(const Variant& Index, IUnknown* value) {
    return guarded(classid::TARQModel, [&] { return copyItem<Columns>(store_, Index, value); });
}

Status CTARQModel::put_Res(const Variant& Index, IUnknown* value) {
    return guarded(classid::TARQModel, [&] { return copyItem<Rows>(store_, Index, value); });
}

}  // namespace tarq
