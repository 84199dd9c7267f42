#include "parameters/parameteraccess.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include "tests/parameters/parameterfailures.h"

namespace tarq {
namespace {

constexpr double modelInfinity = 1e25;

/// The user writes a decimal comma; set before the first conversion reads the user's marks.
const bool userWritesComma = ::setenv("LC_ALL", "de_DE.UTF-8", 1) == 0;

auto isUnknownName() { return failsWith(status::unknownParameter, "Parameter name does not exist."); }

struct ParameterAccess : testing::Test {
    ParameterTable table;

    Outcome put(std::string_view name, const Variant& value, double infinity = modelInfinity) {
        return writeParameter(table, name, value, infinity);
    }
    [[nodiscard]] Variant get(std::string_view name) const {
        const Result<Variant> value = readParameter(table, name);
        EXPECT_TRUE(value.isOk()) << name;
        return *value;
    }
    [[nodiscard]] std::string textOf(std::string_view name) const { return table.valueText(parameterIndex(name)); }
};

TEST_F(ParameterAccess, NamesAreFoundWithoutRegardToCase) {
    EXPECT_THAT(put("XMITER", Variant(5)), succeeds());
    EXPECT_EQ(get("xMiter").integer(), 5);
    EXPECT_EQ(get("XMITER").code(), 3);
    EXPECT_EQ(get("XabGap").code(), 5);
    EXPECT_EQ(get("XFNMPS").code(), 8);
    EXPECT_EQ(get("xfnmps").text(), "");
}

TEST_F(ParameterAccess, UnknownNameIsRefused) {
    for (const std::string_view name : {"", "xunkno", "xmiter ", "xmiterxmiter"}) {
        EXPECT_THAT(readParameter(table, name).outcome(), isUnknownName()) << name;
        EXPECT_THAT(put(name, Variant::null()), isUnknownName()) << name;
    }
}

TEST_F(ParameterAccess, ResultsAreReadableAndCanNotBePut) {
    table.setResult(resultIndex("xzbest"), 2.5);
    table.setResult(resultIndex("xnodes"), 17);
    EXPECT_EQ(get("XZBEST").real(), 2.5);
    EXPECT_EQ(get("xnodes").code(), 3);
    EXPECT_EQ(get("xnodes").integer(), 17);
    EXPECT_THAT(put("xzbest", Variant(1.0)), isUnknownName());
    EXPECT_EQ(get("xzbest").real(), 2.5);
}

TEST_F(ParameterAccess, TextBecomesANumberByEnglishConventionsUnderAnyLocale) {
    ASSERT_TRUE(userWritesComma);
    const struct {
        std::string_view name;
        std::string_view text;
        std::string_view stored;
    } accepted[] = {
        {"xhgap", "1.5", "1.5"}, {"xhgap", " +1,000.25 ", "1000.25"}, {"xhgap", "1e-3", "0.001"},
        {"xhgap", "1,5", "15"},  {"xmiter", "1,000", "1000"},         {"xmiter", "2.5", "2"},
        {"xmiter", "3.5", "4"},  {"xmiter", "1E3", "1000"},           {"xmiter", "2147483647", "2147483647"},
    };
    for (const auto& each : accepted) {
        EXPECT_THAT(put(each.name, Variant(each.text)), succeeds()) << each.text;
        EXPECT_EQ(textOf(each.name), each.stored) << each.text;
    }
    EXPECT_THAT(put("xnodse", Variant("-7.5")), isOutOfRange());  // rounded first, then compared with the limits
    for (const std::string_view text : {"", " ", "x", "1.5.2", "0x10", "1 2", "nan", "inf", "1e400", "1.5x"}) {
        EXPECT_THAT(put("xhgap", Variant(text)), isWrongType()) << text;
        EXPECT_THAT(put("xmiter", Variant(text)), isWrongType()) << text;
    }
    EXPECT_THAT(put("xmiter", Variant("2147483648")), isWrongType());
    EXPECT_EQ(textOf("xhgap"), "15");
    EXPECT_EQ(textOf("xmiter"), "2147483647");
}

TEST_F(ParameterAccess, OtherKindsAreConvertedToTheRowsKind) {
    EXPECT_THAT(put("xscale", Variant(1.5)), succeeds());
    EXPECT_EQ(textOf("xscale"), "2");
    EXPECT_THAT(put("xscale", Variant()), succeeds());
    EXPECT_EQ(textOf("xscale"), "0");
    EXPECT_THAT(put("xabgap", Variant(std::int16_t{3})), succeeds());
    EXPECT_EQ(textOf("xabgap"), "3");
    EXPECT_THAT(put("xobj", Variant(12)), succeeds());
    EXPECT_EQ(textOf("xobj"), "12");
    EXPECT_THAT(put("xscale", Variant(true)), isOutOfRange());
    EXPECT_THAT(put("xabgap", Variant(std::nan(""))), isOutOfRange());
    EXPECT_THAT(put("xscale", Variant(std::nan(""))), isWrongType());
    EXPECT_THAT(put("xscale", Variant(1e10)), isWrongType());
    for (const std::string_view name : {"xscale", "xabgap", "xobj", "xminmx"}) {
        EXPECT_THAT(put(name, Variant::null()), isWrongType()) << name;
        EXPECT_THAT(put(name, Variant::missing()), isWrongType()) << name;
    }
}

TEST_F(ParameterAccess, ReferencesAreResolvedFirst) {
    double number = 0.5;
    std::string text = "1.5";
    Variant inner = Variant::byReference(text);
    EXPECT_THAT(put("xabgap", Variant::byReference(number)), succeeds());
    EXPECT_EQ(textOf("xabgap"), "0.5");
    EXPECT_THAT(put("xabgap", Variant::byReference(inner)), succeeds());
    EXPECT_EQ(textOf("xabgap"), "1.5");
    EXPECT_THAT(put("xobj", Variant::byReference(text)), succeeds());
    EXPECT_EQ(textOf("xobj"), "1.5");
    EXPECT_EQ(text, "1.5");
}

TEST_F(ParameterAccess, DirectionIsStoredInLowerCaseAndOnlyItsLengthIsChecked) {
    EXPECT_THAT(put("xminmx", Variant("MAX")), succeeds());
    EXPECT_EQ(get("xminmx").text(), "max");
    EXPECT_THAT(put("xminmx", Variant("SIDEWAYS")), succeeds());
    EXPECT_EQ(get("xminmx").text(), "sideways");
    EXPECT_THAT(put("xminmx", Variant("MAXIMIZED")), isTooLong());
    EXPECT_EQ(get("xminmx").text(), "sideways");
    EXPECT_THAT(put("xobj", Variant("COST")), succeeds());
    EXPECT_EQ(get("xobj").text(), "COST");
}

TEST_F(ParameterAccess, DirectionMovesABoundOnlyAtTheModelsInfinity) {
    const struct {
        double bound;
        double infinity;
        std::string_view direction;
        double moved;
    } cases[] = {
        {1e20, 1e25, "max", 1e20},   // the bound's own limit is not the model's infinity
        {1e20, 1e20, "max", -1e20},  //
        {-1e20, 1e20, "MIN", 1e20},  //
        {1e20, 1e15, "other", -1e15}, {-1e15, 1e15, "min", 1e15}, {9e14, 1e15, "max", 9e14},
    };
    for (const auto& each : cases) {
        ASSERT_THAT(put("xipbnd", Variant(each.bound)), succeeds());
        EXPECT_THAT(put("XMINMX", Variant(each.direction), each.infinity), succeeds());
        EXPECT_EQ(get("xipbnd").real(), each.moved) << each.bound << ' ' << each.infinity << ' ' << each.direction;
    }
    ASSERT_THAT(put("xipbnd", Variant(1e15)), succeeds());
    EXPECT_THAT(put("xminmx", Variant("much too long"), 1e15), isTooLong());
    EXPECT_EQ(get("xipbnd").real(), 1e15);
}

TEST_F(ParameterAccess, InfoTellsARowOfEachKind) {
    ASSERT_THAT(put("xautom", Variant(0)), succeeds());
    ParameterInfo info = *parameterInfo(table, 5);
    EXPECT_EQ(info.name, "xautom");
    EXPECT_EQ(info.type, ParameterType::Long);
    EXPECT_EQ(info.minimum->integer(), 0);
    EXPECT_EQ(info.maximum->integer(), 1);
    EXPECT_EQ(info.defaultValue.integer(), 1);
    EXPECT_EQ(info.value.integer(), 0);
    EXPECT_EQ(info.stringLength, 0);
    EXPECT_EQ(info.optionCount, 2);
    EXPECT_EQ(info.section, ParameterSection::Lp);
    EXPECT_EQ(info.control, ParameterControl::CheckBox);

    info = *parameterInfo(table, 63);
    EXPECT_EQ(info.name, "xluctr");
    EXPECT_EQ(info.minimum->real(), 1.1);
    EXPECT_EQ(info.maximum->real(), 5.0);
    EXPECT_EQ(info.defaultValue.real(), 2.0);
    EXPECT_EQ(info.optionCount, 0);

    info = *parameterInfo(table, 66);
    EXPECT_EQ(info.name, "xminmx");
    EXPECT_EQ(info.defaultValue.text(), "min");
    EXPECT_EQ(info.stringLength, 8);
    EXPECT_FALSE(info.minimum || info.maximum || info.optionCount);
}

TEST_F(ParameterAccess, IdsOutsideOfTheTableAreRefused) {
    const auto badParameter = failsWith(status::invalidArgument, "Bad parameter ID.");
    const auto badOption = failsWith(status::invalidArgument, "Bad option ID.");
    for (const std::int32_t id : {0, 122, -1, std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_THAT(parameterInfo(table, id).outcome(), badParameter) << id;
        EXPECT_THAT(parameterOption(id, 1).outcome(), badParameter) << id;
    }
    for (std::int32_t id = 1; id <= parameterCount; ++id) {
        const auto& options = parameterRows()[static_cast<std::size_t>(id) - 1].options;
        EXPECT_THAT(parameterOption(id, 0).outcome(), badOption) << id;
        EXPECT_THAT(parameterOption(id, static_cast<std::int32_t>(options.size()) + 1).outcome(), badOption) << id;
    }
    const ParameterOption option = *parameterOption(51, 1);  // has options although it is on no page
    EXPECT_EQ(option.value, 1);
    EXPECT_EQ(option.text, "Model will be saved before optimization for later changes.");
    EXPECT_EQ(parameterOption(43, 7)->text, "RSS heuristic with xnodse=3 and total rounding.");
}

}  // namespace
}  // namespace tarq
