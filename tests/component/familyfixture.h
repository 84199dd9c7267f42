// Families of columns and rows to test, as two sides of one thing.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "itemfixture.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/interfaces/itarqresset.h"
#include "tarq/interfaces/itarqressetenum.h"
#include "tarq/interfaces/itarqvarset.h"
#include "tarq/interfaces/itarqvarsetenum.h"

namespace tarq {

/// The call failed with this status, and the thread's error tells this description as one of the class.
MATCHER_P3(raisedBy, classId, status, description, "raises '" + std::string(description) + "'") {
    const ObjectError* const error = lastError();
    if (error == nullptr) return false;
    *result_listener << "described as '" << error->description << "'";
    return arg == status && error->status == status && error->description == description && error->classId == classId;
}

struct ColumnFamilies : ColumnKind {
    using Family = ITARQVarSet;
    using Enumerator = ITARQVarSetEnum;
    static constexpr const char* familyClass = "TARQVarSet";
    static constexpr const char* enumeratorClass = "TARQVarSetEnum";
    static constexpr const Guid& familyId = classid::TARQVarSet;
    static constexpr const Guid& enumeratorId = classid::TARQVarSetEnum;
    static constexpr auto start = &ITARQModel::get_VarSetStartIndex;
    static constexpr auto clear = &ITARQModel::_ClearTARQVarSet;
    static constexpr const char* duplicateMember = "Duplicate col name: x.1.3";
    static constexpr const char* memberNotFound = "Column name 'x.1.3' could not be found.";
    static constexpr Status gone = status::wrongState;  ///< what a write answers without members in the model
    static constexpr const char* protectedMember = "Column is part of a TARQVarSet and cannot be deleted";
    static constexpr const char* onlyOne = "Indices must specify one single col, not severals.";
};

struct RowFamilies : RowKind {
    using Family = ITARQResSet;
    using Enumerator = ITARQResSetEnum;
    static constexpr const char* familyClass = "TARQResSet";
    static constexpr const char* enumeratorClass = "TARQResSetEnum";
    static constexpr const Guid& familyId = classid::TARQResSet;
    static constexpr const Guid& enumeratorId = classid::TARQResSetEnum;
    static constexpr auto start = &ITARQModel::get_ResSetStartIndex;
    static constexpr auto clear = &ITARQModel::_ClearTARQResSet;
    static constexpr const char* duplicateMember = "Duplicate row name: x.1.3";
    static constexpr const char* memberNotFound = "Row name 'x.1.3' could not be found.";
    static constexpr Status gone{1};
    static constexpr const char* protectedMember = "Row is part of a TARQResSet and cannot be deleted.";
    static constexpr const char* onlyOne = "Indices must specify one single row, not severals.";
};

using FamilyKinds = testing::Types<ColumnFamilies, RowFamilies>;

/// Five index arguments, the last ones missing.
template <class... Indices>
std::array<Variant, 5> indices(const Indices&... given) {
    std::array<Variant, 5> all;
    all.fill(Variant::missing());
    std::size_t i = 0;
    ((all[i++] = Variant(given)), ...);
    return all;
}

/// The list of a variadic argument.
template <class... Values>
ValueList listOf(const Values&... values) {
    return ValueList(std::vector<Variant>{Variant(values)...});
}

/// "2x3: 1 2 3 4 5 6" of an array, "5" of a scalar, with an l behind whole numbers.
inline std::string shown(const Variant& value) {
    const auto text = [](Variant number) {
        const bool isWhole = number.is(Kind::Long);
        return number.toText() ? number.takeText().append(isWhole ? "l" : "") : std::string("?");
    };
    if (!value.isArray()) return text(value);
    std::string all;
    for (const Dimension& dimension : value.array().dimensions()) {
        EXPECT_EQ(dimension.lowerBound, 0);
        all.append(all.empty() ? "" : "x").append(std::to_string(dimension.length));
    }
    all.append(":");
    for (std::size_t i = 0; i < value.array().elementCount(); ++i) {
        Variant element;
        EXPECT_THAT(value.array().getAt(i, element), succeeds());
        all.append(" ").append(text(element));
    }
    return all;
}

inline Variant numbers(std::vector<double> values) { return Variant(SafeArray::of(std::move(values))); }
inline Variant names(std::vector<std::string> values) { return Variant(SafeArray::of(std::move(values))); }

/// A model, and a family "x" over 1, 2 and 1, 2, 3 behind "first" and "second" in it.
template <class Kind>
class FamilyTest : public ItemTest<Kind> {
protected:
    using Family = typename Kind::Family;
    using Enumerator = typename Kind::Enumerator;

    FamilyTest() : family(newFamily()) { EXPECT_THAT(family->Init(this->model.get(), "x", listOf(2, 3)), succeeds()); }
    static Ref<Family> newFamily() { return createObject<Family>(Kind::familyClass); }

    template <class Getter, class... Indices>
    Status readInto(Variant& value, Getter getter, const Indices&... given) {
        const std::array<Variant, 5> i = indices(given...);
        return (family.get()->*getter)(i[0], i[1], i[2], i[3], i[4], &value);
    }
    template <class Getter, class... Indices>
    std::string read(Getter getter, const Indices&... given) {
        Variant value;
        EXPECT_THAT(readInto(value, getter, given...), succeeds());
        return shown(value);
    }
    template <class... Indices>
    std::string upper(const Indices&... given) {
        return read(&Family::get_UB, given...);
    }
    template <class Putter, class Value, class... Indices>
    Status write(Putter putter, const Value& value, const Indices&... given) {
        const std::array<Variant, 5> i = indices(given...);
        return (family.get()->*putter)(i[0], i[1], i[2], i[3], i[4], Variant(value));
    }
    template <class Value, class... Indices>
    Status putUpper(const Value& value, const Indices&... given) {
        return write(&Family::put_UB, value, given...);
    }
    /// Names of the model's columns or rows.
    std::string modelNames() {
        std::string all;
        for (std::int32_t number = 1; number <= this->count(); ++number) {
            all.append(all.empty() ? "" : " ");
            all.append(this->template valueOf<std::string>(Kind::name, number));
        }
        return all;
    }
    std::int32_t start() {
        std::int32_t number = -1;
        EXPECT_THAT((this->model.get()->*Kind::start)(family.get(), &number), succeeds());
        return number;
    }
    std::int32_t memberCount() {
        std::int32_t value = -1;
        EXPECT_THAT(family->get_Count(&value), succeeds());
        return value;
    }
    /// The name of the column or row that an item stands for.
    std::string nameOf(const Ref<IUnknown>& item) {
        return item ? valuesOf(item.template query<typename Kind::Object>()).name : "none";
    }

    Ref<Family> family;
};

}  // namespace tarq
