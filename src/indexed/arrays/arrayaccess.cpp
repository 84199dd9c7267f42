#include "indexed/arrays/arrayaccess.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "frame/result.h"
#include "tarq/frame/safearray.h"

namespace tarq {
namespace {

Outcome noSuchCell(const ArrayStore& store, std::span<const std::size_t> positions) {
    const std::string name = fullIndexName({}, *store.dimensions(), positions);
    return {status::invalidArgument, std::string("Index '").append(name).append("' does not exist.")};
}

/// Hands each selected cell and its number in the selection to `use`.
template <class Use>
Outcome forEachSelected(ArrayStore& store, const Selection& selection, const Use& use) {
    std::size_t number = 0;
    return selection.walk([&](std::span<const std::size_t> positions) -> Outcome {
        Variant* const cell = store.cell(positions);
        if (cell == nullptr) return noSuchCell(store, positions);
        use(*cell, number++);
        return {};
    });
}

bool isWhole(const ArrayStore& store, const Selection& selection) {
    if (store.block().empty()) return false;
    for (const SelectedDimension& dimension : selection.dimensions()) {
        if (!dimension.isWhole()) return false;
    }
    return true;
}

Outcome makeArray(const Selection& selection, SafeArray& array) {
    std::vector<Dimension> dimensions;
    for (const std::size_t size : selection.sizes()) dimensions.push_back({0, static_cast<std::uint32_t>(size)});
    return SafeArray::create(Kind::Variant, dimensions, array);
}

}  // namespace

Outcome readCells(ArrayStore& store, const Selection& selection, Variant& value) {
    if (selection.count() == 1) {
        return forEachSelected(store, selection, [&](const Variant& cell, std::size_t) { value = cell; });
    }
    if (store.count() == 0 && selection.count() > 0) {
        // There may be far more combinations than fit an array.
        return forEachSelected(store, selection, [](const Variant&, std::size_t) {});
    }
    SafeArray array;
    TARQ_TRY(makeArray(selection, array));
    const std::span<Variant> elements = array.elements<Variant>();
    if (isWhole(store, selection)) {
        std::ranges::copy(store.block(), elements.begin());
    } else {
        Outcome read = forEachSelected(store, selection,
                                       [&](const Variant& cell, std::size_t number) { elements[number] = cell; });
        if (!read.isOk()) return read;
    }
    value = Variant(std::move(array));
    return {};
}

Outcome writeCells(ArrayStore& store, const Selection& selection, std::vector<Variant>& values) {
    if (isWhole(store, selection)) {
        store.replaceBlock(values);
        return {};
    }
    return forEachSelected(store, selection,
                           [&](Variant& cell, std::size_t number) { cell = std::move(values[number]); });
}

Outcome storeValues(ArrayStore& store, std::span<Variant> values) {
    const std::vector<std::size_t> sizes = store.sizes();
    if (values.size() > combinationCount(sizes)) {
        return {status::invalidArgument, "More values passed, than TARQArray has elements."};
    }
    std::vector<std::size_t> positions(sizes.size(), 0);
    for (Variant& value : values) {
        Variant* const cell = store.cell(positions);
        if (cell == nullptr) return noSuchCell(store, positions);
        *cell = std::move(value);
        nextIndexCombination(sizes, positions);
    }
    return {};
}

}  // namespace tarq
