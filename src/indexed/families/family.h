// Family: what a family of columns or rows is and does; the classes that clients see hand their members on to it.
//
// A family holds no data of its members, only their names and how many they are; the data is the model's and is reached
// through the model's public members. A status that these return, also a success with a message, ends an operation and
// is handed on without a description, so that the model's own record stands. Where members have their data is asked of
// the model anew by each operation, as the model may have lost them or gained and lost others.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "indexed/dimensions/indexarguments.h"
#include "indexed/families/familyside.h"
#include "tarq/frame/module.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {

/// Members that were selected, with all that finds them. Held apart from the family, which a client may change while it
/// is asked for values.
struct SelectedMembers {
    Ref<ITARQModel> model;
    std::string prefix;
    Dimensions dimensions;
    Selection selection;
};

class Family {
public:
    /// `self` is the object that the model knows, which outlives this.
    Family(const FamilySide& side, IUnknown* self) : side_(side), self_(self) {}

    /// By what models know the family.
    [[nodiscard]] std::uint64_t number() const noexcept { return number_; }
    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] const Ref<ITARQModel>& model() const noexcept { return model_; }
    [[nodiscard]] const std::vector<Indexset>& dimensions() const noexcept { return *dimensions_; }
    [[nodiscard]] const Dimensions& sharedDimensions() const noexcept { return dimensions_; }
    [[nodiscard]] std::size_t memberCount() const noexcept { return memberCount_; }

    [[nodiscard]] Outcome requireInitialized() const;

    Outcome init(IUnknown* model, const std::string& name, const ValueList& indexsets);
    Outcome clear();
    Outcome rename(const std::string& name);

    /// Dimensions and elements as clients number them, from 1.
    Outcome sizeOf(std::int32_t dimension, std::int32_t& size) const;
    Outcome elementName(std::int32_t dimension, std::int32_t element, std::string& name) const;
    /// Name of the member with this number, from 1.
    Outcome memberName(std::int32_t number, std::string& name) const;
    /// Name of the one member that the indices select.
    Outcome memberName(const IndexArguments& indices, std::string& name) const;

    /// Sets `value` to what `get` gives of the selected members: a scalar where all values are equal, else an array.
    /// Whole numbers are Longs.
    template <class Value>
    Outcome read(MemberGet<Value> get, const IndexArguments& indices, Variant* value) const;
    /// Changes the selected members to the value, or to one each, converted to the kind `target`.
    Outcome write(MemberChange change, Kind target, const IndexArguments& indices, const Variant& value);

    /// Number in the model of the column or row that `index` names, or of the member with that number.
    Outcome numberInModel(const Variant& index, std::int32_t& number) const;
    Outcome copyFrom(const Variant& index, IUnknown* object);
    /// Number in the model of the member with the 0-based ordinal, where the first one has the number `start`. Fails
    /// where the member isn't there, as Init did not get that far.
    Outcome numberInModel(std::int32_t start, std::size_t ordinal, std::int32_t& number) const;
    /// Number in the model of the first member.
    Outcome findStart(ITARQModel& model, std::int32_t& number) const;

private:
    [[nodiscard]] bool isInitialized() const noexcept { return !dimensions_->empty(); }
    [[nodiscard]] Outcome changedMeanwhile() const;
    [[nodiscard]] Outcome requireDimension(std::int32_t dimension) const;
    void countMembers();
    Outcome addMembers();
    Outcome select(const IndexArguments& indices, SelectedMembers& members) const;

    const FamilySide& side_;
    IUnknown* const self_;
    const std::uint64_t number_ = module::uniqueNumber();
    std::string name_;
    Ref<ITARQModel> model_;
    /// Never null; replaced and not changed.
    Dimensions dimensions_ = std::make_shared<const std::vector<Indexset>>();
    std::size_t memberCount_ = 0;  ///< what the dimensions make, once all of them were read or the family is renamed
    std::size_t addedCount_ = 0;   ///< how many of them the model took
};

extern template Outcome Family::read(MemberGet<double>, const IndexArguments&, Variant*) const;
extern template Outcome Family::read(MemberGet<TARQColType>, const IndexArguments&, Variant*) const;
extern template Outcome Family::read(MemberGet<TARQColRowStatusType>, const IndexArguments&, Variant*) const;

}  // namespace tarq
