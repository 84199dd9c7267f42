#include "indexed/families/family.h"

#include <limits>
#include <new>
#include <utility>

#include "frame/result.h"
#include "frame/text.h"
#include "indexed/values/plainvalue.h"

namespace tarq {
namespace {

constexpr std::size_t longestName = 64;  // in characters

Outcome rangeFailure() { return {status::indexOutOfRange, "Index out of valid range."}; }

Outcome alreadyInitialized() {
    // Families of rows say so too.
    return {status::wrongState, "TARQVarSet has already been initialized. Eventually clear first."};
}

std::vector<std::size_t> sizesOf(const std::vector<Indexset>& dimensions) {
    std::vector<std::size_t> sizes;
    sizes.reserve(dimensions.size());
    for (const Indexset& names : dimensions) sizes.push_back(names.size());
    return sizes;
}

/// A family that fits no memory ends here, and not after the model has filled all of it.
void requireRoom(std::size_t members) {
    constexpr std::size_t leastBytes = 128;  // of a column or row in a model
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    if (members > most) throw std::bad_alloc();
    ::operator delete(::operator new(members* leastBytes));
}

/// Hands the ordinal and the name of each member to `take`, which returns an Outcome, until that fails.
template <class Take>
Outcome walkMembers(const std::vector<Indexset>& dimensions, const std::string& prefix, const Take& take) {
    const std::vector<std::size_t> sizes = sizesOf(dimensions);
    std::vector<std::size_t> positions(sizes.size(), 0);
    std::size_t ordinal = 0;
    do {
        const std::string name = fullIndexName(prefix, dimensions, positions);
        TARQ_TRY(take(ordinal++, name));
    } while (nextIndexCombination(sizes, positions));
    return {};
}

}  // namespace

Outcome Family::requireInitialized() const {
    if (isInitialized()) return {};
    return {status::notInitialized, std::string(side_.className).append(" has not been initialized.")};
}

Outcome Family::changedMeanwhile() const {
    return {status::wrongState,
            std::string(side_.className).append(" has been changed while values were read for it.")};
}

Outcome Family::init(IUnknown* model, const std::string& name, const ValueList& indexsets) {
    if (isInitialized()) return alreadyInitialized();
    Ref<ITARQModel> offered = Ref<IUnknown>(model).query<ITARQModel>();
    if (!offered) return {status::wrongState, "First parameter is no TARQModel."};
    model_ = offered;
    if (utf16Length(name) > longestName) return {status::invalidArgument, "Name is too long."};
    name_ = name;
    std::vector<Indexset> dimensions;
    Outcome read = readIndexsetList(indexsets, dimensions);
    // An object that was read may have called this family, and given it another model or name for a while.
    if (isInitialized()) return alreadyInitialized();
    model_ = std::move(offered);
    name_ = name;
    dimensions_ = std::make_shared<const std::vector<Indexset>>(std::move(dimensions));
    return read.isOk() ? addMembers() : read;
}

void Family::countMembers() {
    const std::size_t count = combinationCount(sizesOf(*dimensions_));
    requireRoom(count);
    memberCount_ = count;
}

Outcome Family::addMembers() {
    const auto dimensions = dimensions_;
    const Ref<ITARQModel> model = model_;
    const std::string name = name_;
    countMembers();
    return walkMembers(*dimensions, name, [&](std::size_t /*ordinal*/, const std::string& member) -> Outcome {
        TARQ_TRY((model.get()->*side_.add)(&member, self_));
        if (dimensions_ != dimensions || name_ != name) return changedMeanwhile();
        ++addedCount_;
        return {};
    });
}

Outcome Family::clear() {
    Dimensions none = std::make_shared<const std::vector<Indexset>>();
    const Ref<ITARQModel> model = model_;
    if (model) {
        TARQ_TRY((model.get()->*side_.clear)(self_));
    }
    name_.clear();
    dimensions_ = std::move(none);
    memberCount_ = 0;
    addedCount_ = 0;
    return {};
}

Outcome Family::rename(const std::string& name) {
    if (utf16Length(name) > longestName) return {status::invalidArgument, "Name too long."};
    name_ = name;
    if (!isInitialized()) return {};
    // After an Init that failed, the dimensions that it got to make the names.
    if (memberCount_ == 0) countMembers();
    const auto dimensions = dimensions_;
    const Ref<ITARQModel> model = model_;
    std::int32_t start = 0;
    TARQ_TRY(findStart(*model, start));
    return walkMembers(*dimensions, name, [&](std::size_t ordinal, const std::string& member) -> Outcome {
        std::int32_t number = 0;
        TARQ_TRY(numberInModel(start, ordinal, number));
        return side_.rename(*model, number - 1, member);
    });
}

Outcome Family::requireDimension(std::int32_t dimension) const {
    TARQ_TRY(requireInitialized());
    if (dimension >= 1 && static_cast<std::size_t>(dimension) <= dimensions_->size()) return {};
    return {status::invalidArgument, "Illegal indexset specified."};
}

Outcome Family::sizeOf(std::int32_t dimension, std::int32_t& size) const {
    TARQ_TRY(requireDimension(dimension));
    size = static_cast<std::int32_t>((*dimensions_)[static_cast<std::size_t>(dimension) - 1].size());
    return {};
}

Outcome Family::elementName(std::int32_t dimension, std::int32_t element, std::string& name) const {
    TARQ_TRY(requireDimension(dimension));
    const Indexset& names = (*dimensions_)[static_cast<std::size_t>(dimension) - 1];
    if (element < 1 || static_cast<std::size_t>(element) > names.size()) {
        return {status::elementOutOfRange, "Indexset element number is out of valid range."};
    }
    name = names[static_cast<std::size_t>(element) - 1];
    return {};
}

Outcome Family::memberName(std::int32_t number, std::string& name) const {
    TARQ_TRY(requireInitialized());
    if (number < 1 || static_cast<std::size_t>(number) > memberCount_) return rangeFailure();
    std::size_t ordinal = static_cast<std::size_t>(number) - 1;
    std::vector<std::size_t> positions(dimensions_->size());
    for (std::size_t i = positions.size(); i-- > 0;) {
        const std::size_t size = (*dimensions_)[i].size();
        positions[i] = ordinal % size;
        ordinal /= size;
    }
    name = fullIndexName(name_, *dimensions_, positions);
    return {};
}

Outcome Family::findStart(ITARQModel& model, std::int32_t& number) const {
    return (model.*side_.start)(self_, &number);
}

Outcome Family::numberInModel(std::int32_t start, std::size_t ordinal, std::int32_t& number) const {
    // Behind the members that are there stand columns or rows of others.
    if (ordinal >= addedCount_) return rangeFailure();
    const std::int64_t wanted = static_cast<std::int64_t>(start) + static_cast<std::int64_t>(ordinal);
    if (wanted < 1 || wanted > std::numeric_limits<std::int32_t>::max()) return rangeFailure();
    number = static_cast<std::int32_t>(wanted);
    return {};
}

Outcome Family::numberInModel(const Variant& index, std::int32_t& number) const {
    TARQ_TRY(requireInitialized());
    const Ref<ITARQModel> model = model_;
    const PlainValue plain(index);
    if (plain->isText()) return (model.get()->*side_.numberOf)(*plain, &number);
    Variant whole = plain->isArray() ? Variant() : *plain;
    if (plain->isArray() || !whole.toInteger()) {
        return {status::invalidArgument, "Index is not convertible to integer"};
    }
    if (whole.integer() < 1 || static_cast<std::size_t>(whole.integer()) > memberCount_) return rangeFailure();
    std::int32_t start = 0;
    TARQ_TRY(findStart(*model, start));
    return numberInModel(start, static_cast<std::size_t>(whole.integer()) - 1, number);
}

Outcome Family::copyFrom(const Variant& index, IUnknown* object) {
    std::int32_t number = 0;
    TARQ_TRY(numberInModel(index, number));
    const Ref<ITARQModel> model = model_;
    Status copied;
    if (side_.copyFrom(*model, number - 1, Ref<IUnknown>(object), copied)) return copied;
    return {status::wrongState, std::string(side_.onlyObjects)};
}

}  // namespace tarq
