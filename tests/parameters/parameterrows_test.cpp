#include "parameters/parameterrows.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tarq {
namespace {

const ParameterRow& rowNamed(std::string_view name) {
    return parameterRows()[static_cast<std::size_t>(parameterIndex(name))];
}

TEST(ParameterRows, EveryNameFindsItsOwnRowAndNoOther) {
    for (int row = 0; row < parameterCount; ++row) {
        const std::string name(parameterRows()[static_cast<std::size_t>(row)].name);
        EXPECT_EQ(parameterIndex(name), row) << name;
        EXPECT_EQ(resultIndex(name), -1) << name;
        EXPECT_EQ(parameterIndex(name + "x"), -1) << name;
        EXPECT_EQ(parameterIndex(" " + name), -1) << name;
    }
    for (int slot = 0; slot < resultCount; ++slot) {
        const std::string_view name = resultSlots()[static_cast<std::size_t>(slot)].name;
        EXPECT_EQ(resultIndex(name), slot) << name;
        EXPECT_EQ(parameterIndex(name), -1) << name;
    }
}

TEST(ParameterRows, NamesAreSearchedExactly) {
    using namespace std::string_view_literals;
    for (const std::string_view name : {""sv, "x"sv, "XMITER"sv, "xmiteR"sv, "xmite"sv, "xobj\0"sv, "\0xobj"sv,
                                        "\0\0"sv, "xm\xC3\xAFter"sv, "xabgapxabgap"sv, "zzzzzz"sv}) {
        EXPECT_EQ(parameterIndex(name), -1) << name;
        EXPECT_EQ(resultIndex(name), -1) << name;
    }
}

TEST(ParameterRows, OrderIsAlphabeticalExceptForOnePair) {
    std::vector<std::string> outOfOrder;
    for (std::size_t row = 1; row < parameterRows().size(); ++row) {
        const auto before = parameterRows()[row - 1].name;
        if (const auto after = parameterRows()[row].name; after < before) {
            outOfOrder.push_back(std::string(before) + " " + std::string(after));
        }
    }
    EXPECT_THAT(outOfOrder, testing::ElementsAre("xmitip xmirct"));
    EXPECT_EQ(parameterIndex("xmitip"), 67);
    EXPECT_EQ(parameterIndex("xxndxm"), 120);
}

TEST(ParameterRows, TextsAreKeptToTheLetter) {
    EXPECT_THAT(rowNamed("xlpgap").description, testing::EndsWith("will be set after the first supernode processing."));
    EXPECT_THAT(rowNamed("xnwluu").description, testing::HasSubstr("one offers  a small advantage"));
    EXPECT_EQ(rowNamed("xipmem").options[0].text, "Allocate form TARQ memory block.");
    EXPECT_EQ(rowNamed("xmallc").description, "");
    EXPECT_EQ(sectionTitle(rowNamed("xmreal").section), "Ressource Limits");
    EXPECT_EQ(sectionTitle(rowNamed("xbound").section), "");
    EXPECT_EQ(sectionTitle(ParameterSection(8)), "");
    EXPECT_EQ(typeName(rowNamed("xfnmps").type), "string");
}

TEST(ParameterRows, OptionsSkipTheValuesWithoutName) {
    std::vector<int> values;
    for (const ParameterOption& option : rowNamed("xbrheu").options) values.push_back(option.value);
    EXPECT_THAT(values, testing::ElementsAre(0, 1, 2, 3, 5, 6));
    EXPECT_EQ(rowNamed("xheutp").options.size(), 7U);
}

}  // namespace
}  // namespace tarq
