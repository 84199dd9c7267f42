#include "indexed/values/termlist.h"

#include <array>
#include <span>
#include <utility>

#include "frame/result.h"
#include "indexed/values/objectvalues.h"
#include "indexed/values/plainvalue.h"
#include "indexed/values/valueimport.h"
#include "tarq/frame/object.h"
#include "tarq/interfaces/itarqvar.h"
#include "tarq/interfaces/itarqvarset.h"
#include "tarq/interfaces/itarqvarsetenum.h"

namespace tarq {
namespace {

/// Sets `coefficients`. An element that isn't any fails with invalidArgument and is to be read as columns; another
/// failure is the object's own.
Outcome readCoefficients(const Variant& element, CoefficientGroup& coefficients) {
    const PlainValue value(element);
    std::vector<Variant> values;
    if (value->isArray()) {
        TARQ_TRY(appendArrayValues(value->array(), Kind::Double, values));
    } else if (value->isObject()) {
        const Ref<IUnknown> object(value->object());
        TARQ_TRY(collectObjectValues(object.get(), Kind::Double, values));
    } else {
        Variant number = *value;
        if (!number.toReal()) return status::invalidArgument;
        values.push_back(std::move(number));
    }
    coefficients.clear();
    coefficients.reserve(values.size());
    for (const Variant& number : values) coefficients.push_back(number.real());
    return {};
}

void appendNames(std::vector<Variant>& texts, ColumnGroup& columns) {
    columns.reserve(columns.size() + texts.size());
    for (Variant& text : texts) columns.push_back(text.takeText());
}

/// Appends the columns of an object where it is of the kind that the reader knows, which `known` tells.
using ColumnObjectReader = Outcome (*)(const Ref<IUnknown>& object, ColumnGroup& columns, bool& known);

Outcome readColumnName(const Ref<IUnknown>& object, ColumnGroup& columns, bool& known) {
    const Ref<ITARQVar> column = object.query<ITARQVar>();
    known = static_cast<bool>(column);
    if (!known) return {};
    std::string name;
    TARQ_TRY(askObject([&] { return column->get_Name(&name); }));
    columns.push_back(std::move(name));
    return {};
}

/// The names of all that a family, or an enumerator over one, has.
template <class Interface, Status (Interface::*nameOf)(std::int32_t number, std::string* name)>
Outcome readMemberNames(const Ref<IUnknown>& object, ColumnGroup& columns, bool& known) {
    const Ref<Interface> members = object.query<Interface>();
    known = static_cast<bool>(members);
    if (!known) return {};
    std::int32_t count = 0;
    TARQ_TRY(askObject([&] { return members->get_Count(&count); }));
    for (std::int32_t member = 0; member < count; ++member) {
        std::string name;
        Outcome told = askObject([&] { return (members.get()->*nameOf)(member + 1, &name); });
        if (!told.isOk()) return told;
        columns.push_back(std::move(name));
    }
    return {};
}

/// The values of a set, series or array, or of what walks one, are names.
Outcome readValuesAsNames(const Ref<IUnknown>& object, ColumnGroup& columns, bool& known) {
    ValueSource source;
    Outcome opened = openValueSource(object.get(), source);
    known = source.offered;
    if (!opened.isOk() || !known) return opened;
    std::vector<Variant> texts;
    Outcome read = collectObjectValues(object.get(), Kind::Text, texts);
    if (read.isOk()) appendNames(texts, columns);
    return read;
}

/// Every kind of object that stands for columns, in the order in which they are asked.
constexpr std::array<ColumnObjectReader, 4> columnObjectReaders{
    &readColumnName, &readMemberNames<ITARQVarSet, &ITARQVarSet::get_VarName>,
    &readMemberNames<ITARQVarSetEnum, &ITARQVarSetEnum::get_ItemName>, &readValuesAsNames};

Outcome readColumnObject(const Ref<IUnknown>& object, ColumnGroup& columns) {
    for (const ColumnObjectReader read : columnObjectReaders) {
        bool known = false;
        if (Outcome outcome = read(object, columns, known); known || !outcome.isOk()) return outcome;
    }
    return {status::invalidArgument, "Passed object cannot be used as an index set."};
}

Outcome readColumns(const Variant& element, ColumnGroup& columns) {
    const PlainValue value(element);
    if (value->isObject()) return readColumnObject(Ref<IUnknown>(value->object()), columns);
    std::vector<Variant> texts;
    if (value->isArray()) {
        TARQ_TRY(appendArrayValues(value->array(), Kind::Text, texts));
    } else {
        Variant name = *value;
        if (!name.toText()) return {status::invalidArgument, "Value cannot be used as a column name."};
        texts.push_back(std::move(name));
    }
    appendNames(texts, columns);
    return {};
}

}  // namespace

Outcome parseCoeffsAndCols(const ValueList& list, TermList& terms) {
    TermList read;
    const ValueList::Walk walk = list.walk();
    const std::span<const Variant> elements = walk.values();
    for (std::size_t position = 0; position < elements.size();) {
        CoefficientGroup& coefficients = read.coefficients.emplace_back(CoefficientGroup{1.0});
        // The only element of a list is a column, even where it reads as a number.
        if (elements.size() > 1) {
            Outcome outcome = readCoefficients(elements[position], coefficients);
            if (!outcome.isOk() && outcome.status() != status::invalidArgument) return outcome;
            if (outcome.isOk()) ++position;
        }
        if (position == elements.size()) break;
        ColumnGroup& columns = read.columns.emplace_back();
        TARQ_TRY(readColumns(elements[position++], columns));
    }
    terms = std::move(read);
    return {};
}

Outcome checkTermCount(const TermList& terms) {
    if (terms.coefficients.size() == terms.columns.size()) return {};
    return {status::invalidArgument, "Last argument are coefficients without corresponding column(s)."};
}

Outcome checkTerm(const CoefficientGroup& coefficients, const ColumnGroup& columns) {
    if (coefficients.size() == 1 || coefficients.size() == columns.size()) return {};
    return {status::invalidArgument, "Number of coefficients does not fit number of columns."};
}

}  // namespace tarq
