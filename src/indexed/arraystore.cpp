#include "indexed/arraystore.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "indexed/indexarguments.h"

namespace tarq {
namespace {

constexpr std::size_t mostCells = std::numeric_limits<std::int32_t>::max();

std::size_t pointedDimensions(std::span<const Indexset> indexsets) {
    return static_cast<std::size_t>(std::ranges::count_if(indexsets, &Indexset::hasPoint));
}

/// Cuts a full name into the names of elements where at most one dimension has names with points in them.
bool splitName(std::string_view name, std::span<const Indexset> indexsets, std::vector<std::string_view>& parts) {
    const auto pointed = std::ranges::find_if(indexsets, &Indexset::hasPoint);
    const auto rest = static_cast<std::size_t>((pointed == indexsets.end() ? std::prev(indexsets.end()) : pointed) -
                                               indexsets.begin());
    parts.resize(indexsets.size());
    for (std::size_t i = 0; i < rest; ++i) {
        if (!name.starts_with('.')) return false;
        const std::size_t end = name.find('.', 1);
        if (end == std::string_view::npos) return false;
        parts[i] = name.substr(1, end - 1);
        name.remove_prefix(end);
    }
    for (std::size_t i = indexsets.size() - 1; i > rest; --i) {
        const std::size_t start = name.rfind('.');
        if (start == std::string_view::npos) return false;
        parts[i] = name.substr(start + 1);
        name.remove_suffix(name.size() - start);
    }
    if (!name.starts_with('.')) return false;
    parts[rest] = name.substr(1);
    return true;
}

}  // namespace

std::int32_t ArrayStore::count() const noexcept {
    return static_cast<std::int32_t>(byName_ ? named_.size() : cells_.size());
}

std::vector<std::size_t> ArrayStore::sizes() const {
    std::vector<std::size_t> sizes;
    for (const Indexset& names : *dimensions_) sizes.push_back(names.size());
    return sizes;
}

Dimensions ArrayStore::noDimensions() {
    static const Dimensions none = std::make_shared<std::vector<Indexset>>();
    return none;
}

/// The dimensions to be changed: in place, unless somebody holds on to them.
std::vector<Indexset>& ArrayStore::ownDimensions() {
    if (dimensions_.use_count() > 1) dimensions_ = std::make_shared<std::vector<Indexset>>(*dimensions_);
    return *std::const_pointer_cast<std::vector<Indexset>>(dimensions_);
}

void ArrayStore::clear() noexcept {
    static const Dimensions none = noDimensions();
    dimensions_ = none;
    cells_ = {};
    byName_ = false;
    named_.clear();
    names_.clear();
    isIndexed_ = false;
}

Outcome ArrayStore::initialize(std::vector<Indexset> indexsets) {
    clear();
    dimensions_ = std::make_shared<std::vector<Indexset>>(std::move(indexsets));
    const std::size_t combinations = combinationCount(sizes());
    if (combinations > mostCells) {
        clear();
        return status::outOfMemory;
    }
    try {
        cells_.resize(combinations);
        if (!indexNames()) keepByName();
    } catch (...) {
        clear();
        throw;
    }
    return {};
}

void ArrayStore::initializeWithoutCells(std::vector<Indexset> indexsets) {
    clear();
    dimensions_ = std::make_shared<std::vector<Indexset>>(std::move(indexsets));
    byName_ = true;
}

/// Makes names of combinations findable; false where two combinations have the same.
bool ArrayStore::indexNames() {
    names_.clear();
    isIndexed_ = false;
    if (std::ranges::any_of(*dimensions_, &Indexset::hasDuplicates)) return false;
    isIndexed_ = pointedDimensions(*dimensions_) > 1;
    if (!isIndexed_) return true;
    names_.reserve(cells_.size());
    const auto nameAt = [this](std::int32_t other) { return nameOf(static_cast<std::size_t>(other)); };
    for (std::size_t combination = 0; combination < cells_.size(); ++combination) {
        if (!names_.insert(nameOf(combination), static_cast<std::int32_t>(combination), nameAt)) return false;
    }
    return true;
}

std::vector<std::size_t> ArrayStore::positionsOf(std::size_t combination) const {
    const std::vector<Indexset>& indexsets = *dimensions_;
    std::vector<std::size_t> positions(indexsets.size());
    for (std::size_t i = indexsets.size(); i-- > 0;) {
        positions[i] = combination % indexsets[i].size();
        combination /= indexsets[i].size();
    }
    return positions;
}

std::string ArrayStore::nameOf(std::size_t combination) const {
    return fullIndexName({}, *dimensions_, positionsOf(combination));
}

void ArrayStore::replaceBlock(std::vector<Variant>& values) {
    values.resize(cells_.size());
    // A list with much room to spare would keep it for as long as the array lives.
    if (values.capacity() <= values.size() + values.size() / 8) {
        cells_.swap(values);
    } else {
        std::ranges::move(values, cells_.begin());
    }
}

Variant* ArrayStore::cell(std::span<const std::size_t> positions) {
    const std::vector<Indexset>& indexsets = *dimensions_;
    if (byName_) return cellNamed(fullIndexName({}, indexsets, positions));
    std::size_t combination = 0;
    for (std::size_t i = 0; i < indexsets.size(); ++i) combination = combination * indexsets[i].size() + positions[i];
    return &cells_[combination];
}

Variant* ArrayStore::cellOfCombination(std::size_t combination) {
    if (!byName_) return combination < cells_.size() ? &cells_[combination] : nullptr;
    return combination < combinationCount(sizes()) ? cellNamed(nameOf(combination)) : nullptr;
}

Variant* ArrayStore::cellNamed(std::string_view name) {
    if (byName_) {
        const auto found = named_.find(name);
        return found == named_.end() ? nullptr : &found->second;
    }
    std::size_t combination = 0;
    return isInitialized() && findPositions(name, combination) ? &cells_[combination] : nullptr;
}

bool ArrayStore::findPositions(std::string_view name, std::size_t& combination) const {
    const std::vector<Indexset>& indexsets = *dimensions_;
    if (isIndexed_) {
        const std::int32_t found =
            names_.find(name, [this](std::int32_t other) { return nameOf(static_cast<std::size_t>(other)); });
        combination = static_cast<std::size_t>(found);
        return found != NameIndex::absent;
    }
    std::vector<std::string_view> parts;
    if (!splitName(name, indexsets, parts)) return false;
    combination = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::int32_t position = indexsets[i].find(parts[i]);
        if (position == Indexset::absent) return false;
        combination = combination * indexsets[i].size() + static_cast<std::size_t>(position);
    }
    return true;
}

void ArrayStore::keepByName() {
    CellMap named;
    for (std::size_t combination = 0; combination < cells_.size(); ++combination) {
        named.try_emplace(nameOf(combination), std::move(cells_[combination]));
    }
    named_ = std::move(named);
    cells_ = {};
    names_.clear();
    isIndexed_ = false;
    byName_ = true;
}

/// Goes back to one block where every combination has a cell of its own again.
void ArrayStore::keepInBlock() {
    const std::size_t combinations = combinationCount(sizes());
    if (named_.size() != combinations) return;
    std::vector<Variant*> found(combinations);
    for (std::size_t combination = 0; combination < combinations; ++combination) {
        found[combination] = cellNamed(nameOf(combination));
        if (found[combination] == nullptr) return;
    }
    cells_.resize(combinations);
    if (!indexNames()) {
        cells_ = {};
        names_.clear();
        isIndexed_ = false;
        return;
    }
    for (std::size_t combination = 0; combination < combinations; ++combination) {
        cells_[combination] = std::move(*found[combination]);
    }
    named_.clear();
    byName_ = false;
}

void ArrayStore::rename(std::size_t dimension, std::size_t element, std::string name) {
    if ((*dimensions_)[dimension][element] == name) return;
    if (!canMeet(dimension, name)) {
        ownDimensions()[dimension].rename(element, std::move(name));
        return;
    }
    // Each cell takes the way to its new name on its own.
    if (!byName_) keepByName();
    renameByName(dimension, element, name);
    ownDimensions()[dimension].rename(element, std::move(name));
    keepInBlock();
}

/// Whether cells can have the same full name, also on the way, when an element of the dimension gets this name.
bool ArrayStore::canMeet(std::size_t dimension, std::string_view name) const {
    const std::vector<Indexset>& indexsets = *dimensions_;
    if (byName_ || isIndexed_ || indexsets[dimension].find(name) != Indexset::absent) return true;
    if (name.find('.') == std::string_view::npos) return false;
    for (std::size_t i = 0; i < indexsets.size(); ++i) {
        if (i != dimension && indexsets[i].hasPoint()) return true;
    }
    return false;
}

void ArrayStore::renameByName(std::size_t dimension, std::size_t element, const std::string& name) {
    if (named_.empty()) return;  // a dimension may have no elements, or more combinations than can be walked
    std::vector<Indexset> after = *dimensions_;
    after[dimension].rename(element, name);
    const std::vector<std::size_t> extents = sizes();
    std::vector<std::size_t> positions(extents.size(), 0);
    do {
        if (positions[dimension] != element) continue;
        const auto old = named_.find(fullIndexName({}, *dimensions_, positions));
        if (old == named_.end()) continue;
        Variant value = std::move(old->second);
        named_.erase(old);
        named_.try_emplace(fullIndexName({}, after, positions), std::move(value));
    } while (nextIndexCombination(extents, positions));
}

void ArrayStore::transpose() {
    const std::vector<Indexset>& before = *dimensions_;
    const std::size_t rows = before[0].size();
    const std::size_t columns = before[1].size();
    std::vector<Indexset> after{before[1], before[0]};
    if (isIndexed_) keepByName();  // the exchanged names can meet
    if (!byName_) {
        std::vector<Variant> cells(cells_.size());
        for (std::size_t row = 0; row < rows; ++row) {
            for (std::size_t column = 0; column < columns; ++column) {
                cells[column * rows + row] = std::move(cells_[row * columns + column]);
            }
        }
        cells_ = std::move(cells);
        dimensions_ = std::make_shared<std::vector<Indexset>>(std::move(after));
        return;
    }
    CellMap named;
    for (std::size_t row = 0; row < rows && !named_.empty(); ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const std::size_t there[] = {row, column};
            const std::size_t here[] = {column, row};
            if (const Variant* const value = cell(there))
                named.insert_or_assign(fullIndexName({}, after, here), *value);
        }
    }
    named_ = std::move(named);
    dimensions_ = std::make_shared<std::vector<Indexset>>(std::move(after));
    keepInBlock();
}

}  // namespace tarq
