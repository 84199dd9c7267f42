#include "indexed/dimensions/indexarguments.h"

#include <utility>

#include "frame/result.h"
#include "indexed/values/elementreader.h"
#include "indexed/values/objectvalues.h"
#include "indexed/values/plainvalue.h"
#include "tarq/frame/safearray.h"

namespace tarq {
namespace {

Outcome refused(std::string message) { return {status::invalidArgument, std::move(message)}; }

Outcome readArray(const SafeArray& array, Indexset& names) {
    const ElementReader reader(array);
    if (!reader.isReadable()) return refused("Array contains elements of wrong type.");
    if (array.dimensions().empty()) return refused("SafeArray is empty or NULL pointer has been passed.");
    if (array.dimensions().size() > 1) return refused("Multidimensional SafeArrays may not be used as indexset.");
    const std::size_t count = array.elementCount();
    names.reserve(count);
    for (std::size_t position = 0; position < count; ++position) {
        TARQ_TRY(addIndexElement(reader.value(position), names));
    }
    return {};
}

Outcome readObject(IUnknown* object, Indexset& names) {
    ValueSource source;
    TARQ_TRY(openValueSource(object, source));
    if (!source.offered) return refused("Passed object cannot be used as an index set.");
    return walkIntoList(source, names, [&](const Variant& value) { return addIndexElement(value, names); });
}

/// One entry of a list of dimensions.
Outcome readEntry(const Variant& entry, Indexset& names) {
    const PlainValue plain(entry);
    if (plain->isArray()) {
        return plain->isByReference() ? readArray(plain->array(), names) : refused("Unsupported argument type.");
    }
    if (plain->isObject()) return readObject(plain->object(), names);
    Variant count = *plain;
    if (!count.toInteger()) return refused("Unsupported argument type.");
    if (count.integer() < 1) {
        return refused("Single value as upper limit of index series may not be smaller than 1.");
    }
    names = Indexset::numbered(count.integer());
    return {};
}

/// The elements that one index argument names, which need not be there.
Outcome readArgument(const Variant& argument, Indexset& names) {
    const PlainValue plain(argument);
    if (plain->isArray()) {
        // The reverse of a new dimension, which is read by reference only.
        return plain->isByReference() ? refused("Array contains elements of wrong type.")
                                      : readArray(plain->array(), names);
    }
    if (plain->isObject()) return readObject(plain->object(), names);
    return addIndexElement(*plain, names);
}

Outcome notThere(const std::string& element) {
    return refused(std::string("Index element '").append(element).append("' is no index element of the base object."));
}

Outcome selectOne(const Variant& argument, const Indexset& base, std::vector<std::int32_t>& positions) {
    std::string name;
    TARQ_TRY(indexElementName(argument, name));
    const std::int32_t position = base.find(name);
    if (position == Indexset::absent) return notThere(name);
    positions.push_back(position);
    return {};
}

Outcome selectMany(const Variant& argument, const Indexset& base, std::vector<std::int32_t>& positions) {
    Indexset names;
    TARQ_TRY(readArgument(argument, names));
    positions.reserve(names.size());
    for (const std::string& name : names.names()) {
        const std::int32_t position = base.find(name);
        if (position == Indexset::absent) return notThere(name);
        positions.push_back(position);
    }
    return {};
}

}  // namespace

Outcome readIndexsetList(const ValueList& list, std::vector<Indexset>& indexsets) {
    if (list.length() == 0) return refused("Empty index set.");
    for (const Variant& entry : list.walk()) {
        Indexset names;
        TARQ_TRY(readEntry(entry, names));
        if (names.empty()) return refused("Empty index set.");
        indexsets.push_back(std::move(names));
    }
    return {};
}

void Selection::append(SelectedDimension dimension) {
    sizes_.push_back(dimension.size());
    dimensions_.push_back(std::move(dimension));
}

Outcome selectIndexsets(const IndexArguments& arguments, std::span<const Indexset> base, Selection& selection) {
    std::size_t last = arguments.size();
    while (last > 0 && isMissingIndex(*arguments[last - 1])) --last;
    if (last > base.size()) return refused("Too many indexsets used as parameter.");
    for (std::size_t dimension = 0; dimension < base.size(); ++dimension) {
        if (dimension >= last || isMissingIndex(*arguments[dimension])) {
            selection.append(SelectedDimension(base[dimension].size()));
            continue;
        }
        const Variant& argument = *arguments[dimension];
        const bool isPlain = argument.isText() || argument.is(Kind::Long) || argument.isRealKind();
        std::vector<std::int32_t> positions;
        Outcome selected = isPlain ? selectOne(argument, base[dimension], positions)
                                   : selectMany(argument, base[dimension], positions);
        if (!selected.isOk()) return selected;
        selection.append(SelectedDimension(std::move(positions)));
    }
    return {};
}

std::string fullIndexName(std::string_view prefix, std::span<const Indexset> indexsets,
                          std::span<const std::size_t> positions) {
    std::string name(prefix);
    for (std::size_t i = 0; i < indexsets.size(); ++i) name.append(1, '.').append(indexsets[i][positions[i]]);
    return name;
}

}  // namespace tarq
