#include "indexed/arrays/arraystore.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "indexed/dimensions/indexarguments.h"

namespace tarq {
namespace {

constexpr std::size_t mostCells = std::numeric_limits<std::int32_t>::max();

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
        if (!indexNames(needsIndex())) keepByName();
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

/// Whether a full name doesn't tell the names of its elements.
bool ArrayStore::needsIndex() const { return std::ranges::count_if(*dimensions_, &Indexset::hasPoint) > 1; }

/// Makes the combinations findable by their names, with an index of these or without one; false, and nothing has
/// changed, where two combinations have the same name.
bool ArrayStore::indexNames(bool withIndex) {
    if (std::ranges::any_of(*dimensions_, &Indexset::hasDuplicates)) return false;
    NameIndex names;
    const auto nameAt = [this](std::int32_t other) { return nameOf(static_cast<std::size_t>(other)); };
    const std::size_t combinations = withIndex ? combinationCount(sizes()) : 0;
    names.reserve(combinations);
    for (std::size_t combination = 0; combination < combinations; ++combination) {
        if (!names.insert(nameOf(combination), static_cast<std::int32_t>(combination), nameAt)) return false;
    }
    names_ = std::move(names);
    isIndexed_ = withIndex;
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
    std::vector<Variant*> places(cells_.size());
    for (std::size_t combination = 0; combination < cells_.size(); ++combination) {
        const auto [cell, isFirst] = named.try_emplace(nameOf(combination));
        if (isFirst) places[combination] = &cell->second;
    }
    for (std::size_t combination = 0; combination < cells_.size(); ++combination) {
        if (places[combination] != nullptr) *places[combination] = std::move(cells_[combination]);
    }
    takeNamed(std::move(named));
}

void ArrayStore::takeNamed(CellMap&& named) noexcept {
    named_ = std::move(named);
    cells_ = {};
    names_.clear();
    isIndexed_ = false;
    byName_ = true;
}

/// Goes back to one block where every combination has a cell of its own again.
void ArrayStore::keepInBlock() noexcept {
    try {
        const std::size_t combinations = combinationCount(sizes());
        if (named_.size() != combinations) return;
        std::vector<Variant> cells(combinations);
        std::vector<Variant*> found(combinations);
        for (std::size_t combination = 0; combination < combinations; ++combination) {
            found[combination] = cellNamed(nameOf(combination));
            if (found[combination] == nullptr) return;
        }
        if (!indexNames(needsIndex())) return;
        for (std::size_t combination = 0; combination < combinations; ++combination) {
            cells[combination] = std::move(*found[combination]);
        }
        cells_ = std::move(cells);
        named_.clear();
        byName_ = false;
    } catch (const std::bad_alloc&) {  // By their names the cells are as good, if slower.
        return;
    }
}

void ArrayStore::rename(std::size_t dimension, std::size_t element, std::string name) {
    const std::vector<Indexset>& indexsets = *dimensions_;
    if (indexsets[dimension][element] == name) return;
    if (!byName_ && indexsets[dimension].find(name) == Indexset::absent) {
        const auto hasPoint = [&](const Indexset& names) {
            return &names != &indexsets[dimension] && names.hasPoint();
        };
        const bool canMeet = name.find('.') != std::string::npos && std::ranges::any_of(indexsets, hasPoint);
        if (!isIndexed_ && !canMeet) {
            ownDimensions()[dimension].rename(element, std::move(name));
            return;
        }
        // The index stays for as long as the cells do, so that names to and fro don't make it anew.
        if ((isIndexed_ || indexNames(true)) && renameInIndex(dimension, element, name)) return;
    }
    // Each cell takes the way to its new name on its own.
    if (!byName_) keepByName();
    renameByName(dimension, element, std::move(name));
    keepInBlock();
}

/// The combinations with an element that gets another name, in their order, with both of their full names.
std::vector<ArrayStore::Renamed> ArrayStore::renamedBy(std::size_t dimension, std::size_t element,
                                                       const std::string& name) const {
    // Without cells a dimension may have no elements, or more combinations than can be walked.
    if (count() == 0) return {};
    const std::vector<Indexset>& indexsets = *dimensions_;
    std::vector<std::size_t> extents = sizes();
    extents[dimension] = 1;
    std::vector<std::size_t> turn(extents.size(), 0);
    std::vector<Renamed> renamed;
    renamed.reserve(combinationCount(extents));
    do {
        Renamed& one = renamed.emplace_back();
        for (std::size_t i = 0; i < turn.size(); ++i) {
            const std::size_t position = i == dimension ? element : turn[i];
            one.combination = one.combination * indexsets[i].size() + position;
            one.before.append(1, '.').append(indexsets[i][position]);
            one.after.append(1, '.').append(i == dimension ? name : indexsets[i][position]);
        }
    } while (nextIndexCombination(extents, turn));
    return renamed;
}

/// Renames in the block where each combination keeps a name of its own, on the way too; else false.
bool ArrayStore::renameInIndex(std::size_t dimension, std::size_t element, const std::string& name) {
    const std::vector<Renamed> renamed = renamedBy(dimension, element, name);
    std::vector<std::string_view> names;
    names.reserve(renamed.size());
    for (const Renamed& one : renamed) {
        std::size_t other = 0;
        if (findPositions(one.after, other)) return false;
        names.emplace_back(one.after);
    }
    std::ranges::sort(names);
    if (std::ranges::adjacent_find(names) != names.end()) return false;
    ownDimensions()[dimension].rename(element, name);
    for (const Renamed& one : renamed) names_.erase(one.before, static_cast<std::int32_t>(one.combination));
    for (const Renamed& one : renamed) names_.insertNew(one.after, static_cast<std::int32_t>(one.combination));
    return true;
}

void ArrayStore::renameByName(std::size_t dimension, std::size_t element, std::string name) {
    std::vector<Renamed> renamed = renamedBy(dimension, element, name);
    ownDimensions()[dimension].rename(element, std::move(name));
    for (Renamed& one : renamed) {
        CellMap::node_type cell = named_.extract(one.before);
        if (cell.empty()) continue;
        cell.key() = std::move(one.after);
        named_.insert(std::move(cell));
    }
}

void ArrayStore::transpose() {
    const std::vector<Indexset>& before = *dimensions_;
    const std::size_t rows = before[0].size();
    const std::size_t columns = before[1].size();
    const auto after = std::make_shared<std::vector<Indexset>>(std::vector<Indexset>{before[1], before[0]});
    if (!byName_ && !isIndexed_) {
        std::vector<Variant> cells(cells_.size());
        for (std::size_t row = 0; row < rows; ++row) {
            for (std::size_t column = 0; column < columns; ++column) {
                cells[column * rows + row] = std::move(cells_[row * columns + column]);
            }
        }
        cells_ = std::move(cells);
        dimensions_ = after;
        return;
    }
    // The exchanged names can meet.
    CellMap named;
    for (std::size_t row = 0; row < rows && count() > 0; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const std::size_t there[] = {row, column};
            const std::size_t here[] = {column, row};
            if (const Variant* const value = cell(there))
                named.insert_or_assign(fullIndexName({}, *after, here), *value);
        }
    }
    takeNamed(std::move(named));
    dimensions_ = after;
    keepInBlock();
}

}  // namespace tarq
