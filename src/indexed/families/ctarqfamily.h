// CTARQFamily: the members that the classes of both kinds of families have, each a few words to their Family.
#pragma once

#include <cstdint>
#include <string>

#include "frame/memberguard.h"
#include "frame/result.h"
#include "indexed/dimensions/idimensions.h"
#include "indexed/families/family.h"
#include "interfaces/ifamilyidentity.h"
#include "tarq/frame/countedobject.h"

namespace tarq {

/// Base of the class `Derived`, with the interface `Interface` and the enumerator `Enumerator`.
template <class Derived, class Interface, class Enumerator, class EnumInterface, const FamilySide& side>
class CTARQFamily : public CountedObject<Derived, Interface, IFamilyIdentity, IDimensions> {
public:
    std::uint64_t familyNumber() const override { return family_.number(); }
    const IUnknown* published() const override { return static_cast<const Interface*>(this); }
    Dimensions sharedDimensions() const override { return family_.sharedDimensions(); }

    Status get__NewEnum(Ref<IUnknown>* value) override {  // NOLINT(bugprone-reserved-identifier)
        const Variant missing = Variant::missing();
        return get_Enum(missing, missing, missing, missing, missing, value);
    }
    Status Init(IUnknown* TARQModel, const std::string& Name, const ValueList& Indexsets) override {
        return guarded(side.classId, [&] { return family_.init(TARQModel, Name, Indexsets); });
    }
    Status Clear() override {
        return guarded(side.classId, [&] { return family_.clear(); });
    }

    Status get_Name(std::string* value) override {
        return guardedGet(value, [&] { return family_.name(); });
    }
    Status put_Name(const std::string& value) override {
        return guarded(side.classId, [&] { return family_.rename(value); });
    }

    Status get_LB(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                  const Variant& Index5, Variant* value) override {
        return read(side.lowerBound, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
    }
    Status put_LB(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                  const Variant& Index5, const Variant& value) override {
        return write(side.changeLower, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
    }
    Status get_UB(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                  const Variant& Index5, Variant* value) override {
        return read(side.upperBound, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
    }
    Status put_UB(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                  const Variant& Index5, const Variant& value) override {
        return write(side.changeUpper, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
    }
    Status get_Status(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                      const Variant& Index5, Variant* value) override {
        return read(side.status, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
    }
    Status get_IPSol(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                     const Variant& Index5, Variant* value) override {
        return read(side.ipValue, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
    }
    Status get_LPSol(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                     const Variant& Index5, Variant* value) override {
        return read(side.lpValue, {&Index1, &Index2, &Index3, &Index4, &Index5}, value);
    }

    Status get_Count(std::int32_t* value) override {
        return guardedGet(value, [&] { return static_cast<std::int32_t>(family_.memberCount()); });
    }
    Status get_NumberOfIndexsets(std::int32_t* value) override {
        return guardedGet(value, [&] { return static_cast<std::int32_t>(family_.dimensions().size()); });
    }
    Status get_SizeOfIndexset(std::int32_t Indexset, std::int32_t* value) override {
        if (value == nullptr) return status::nullPointer;
        return guarded(side.classId, [&] { return family_.sizeOf(Indexset, *value); });
    }
    Status get_IndexsetElement(std::int32_t Indexset, std::int32_t Element, std::string* value) override {
        if (value == nullptr) return status::nullPointer;
        return guarded(side.classId, [&] { return family_.elementName(Indexset, Element, *value); });
    }

    Status get_Enum(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                    const Variant& Index5, Ref<IUnknown>* value) override {
        if (value == nullptr) return status::nullPointer;
        const Status initialized = guarded(side.classId, [&] { return family_.requireInitialized(); });
        if (!initialized.isOk()) return initialized;
        void* made = nullptr;
        const Status created = createInstance<Enumerator>(nullptr, EnumInterface::id, &made);
        if (!created.isOk()) return created;
        const Ref<EnumInterface> enumerator = Ref<EnumInterface>::adopt(static_cast<EnumInterface*>(made));
        const Status ready = enumerator->Init(static_cast<Interface*>(this), Index1, Index2, Index3, Index4, Index5);
        if (ready.isOk()) *value = enumerator.template query<IUnknown>();
        return ready;
    }
    Status get_Parent(Ref<IUnknown>* value) override {
        return guardedGet(value, [&] { return Ref<IUnknown>(family_.model().get()); });
    }

    Status get_Item(const Variant& Index, Ref<IUnknown>* value) override {
        if (value == nullptr) return status::nullPointer;
        return guarded(side.classId, [&]() -> Outcome {
            std::int32_t number = 0;
            TARQ_TRY(family_.numberInModel(Index, number));
            const Ref<ITARQModel> model = family_.model();
            return (model.get()->*side.object)(Variant(number), value);
        });
    }
    Status put_Item(const Variant& Index, IUnknown* value) override {
        return guarded(side.classId, [&] { return family_.copyFrom(Index, value); });
    }
    Status get_ItemByIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                           const Variant& Index5, Ref<IUnknown>* value) override {
        if (value == nullptr) return status::nullPointer;
        return guarded(side.classId, [&]() -> Outcome {
            std::string name;
            Outcome found = family_.memberName({&Index1, &Index2, &Index3, &Index4, &Index5}, name);
            return found.isOk() ? Outcome(get_Item(Variant(std::move(name)), value)) : found;
        });
    }
    Status put_ItemByIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                           const Variant& Index5, IUnknown* value) override {
        return guarded(side.classId, [&]() -> Outcome {
            std::string name;
            Outcome found = family_.memberName({&Index1, &Index2, &Index3, &Index4, &Index5}, name);
            return found.isOk() ? Outcome(put_Item(Variant(std::move(name)), value)) : found;
        });
    }

protected:
    ~CTARQFamily() = default;

    template <class Value>
    Status read(MemberGet<Value> get, const IndexArguments& indices, Variant* value) {
        return guarded(side.classId, [&] { return family_.read(get, indices, value); });
    }
    Status write(MemberChange change, const IndexArguments& indices, const Variant& value, Kind target = Kind::Double) {
        return guarded(side.classId, [&] { return family_.write(change, target, indices, value); });
    }

    Family family_{side, static_cast<Interface*>(this)};
};

}  // namespace tarq
