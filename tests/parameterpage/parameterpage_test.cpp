// What the page shows of every parameter, and what an apply writes and tells.
#include "parameterpage/parameterpage.h"

#include <fmt/format.h>

#include <iterator>

#include "parameterpage/pagecontents.h"
#include "tests/component/modelfixture.h"

namespace tarq {
namespace {

class ParameterPageTest : public ModelTest {
protected:
    Variant parameter(const char* name) { return valueOf<Variant>(&ITARQModel::get_Parameter, std::string(name)); }

    static std::vector<std::string> texts(const std::vector<PageMessage>& messages) {
        std::vector<std::string> all;
        for (const PageMessage& message : messages) all.push_back(message.text);
        return all;
    }
};

TEST_F(ParameterPageTest, EveryParameterStandsInItsPlaceAsItsKindOfItem) {
    // Of the 121 rows, xfnbai and the twelve without a section are left out.
    const std::pair<const char*, const char*> expected[] = {
        {"Optimization Direction", "xminmx:radio"},
        {"Ressource Limits",
         "xabgap:edit xadcol:edit xadnon:edit xadrow:edit xcbnnd:edit xfrite:edit xfrnds:edit xglgap:edit xmiter:edit "
         "xmitip:edit xmmax:edit xmreal:edit xmxdsk:edit xmxint:edit xmxmin:edit xmxnod:edit xmxpsu:edit xmxtlp:edit"},
        {"LP Parameter",
         "xautom:check xbatyp:radio xbndha:radio xdjscl:combo xdropf:edit xdropm:edit xfiltl:edit xfrinv:edit "
         "xipdua:edit xipmem:radio xipxov:combo xlptyp:radio xluctr:edit xminfi:edit xnproc:edit xnwluf:check "
         "xnwluu:check xoripm:combo xpreme:edit xrduce:check xxndxm:edit"},
        {"IP Parameter",
         "xbckpa:edit xbndrd:edit xbrheu:combo xclict:radio xcored:radio xcovct:combo xeucrd:check xfrnod:edit "
         "xgomct:edit xgommc:edit xheutp:combo xhfinb:check xhgap:edit xhrdlb:edit xhrdub:edit xhtlim:edit "
         "ximbnd:radio ximpli:radio xiplpt:radio xlifo:radio xlocs:combo xlotst:radio xlpgap:edit xlpmip:radio "
         "xmirct:radio xmnheu:edit xnewbb:check xnlbab:edit xnlstr:edit xnodbf:edit xnodse:edit xnogap:check "
         "xnoitb:check xnopre:check xparnd:edit xparnl:edit xpcini:radio xprlev:radio xranha:check xrimpr:edit "
         "xusepl:check"},
        {"Other Parameter", "xchksw:check xdimcn:radio xfrlog:edit xoutlv:combo xoutsl:radio xscale:radio"},
        {"Tolerances",
         "xtold1:edit xtold2:edit xtolin:edit xtolpv:edit xtolqi:edit xtolr1:edit xtolr2:edit xtolre:edit xtolx:edit "
         "xtolx1:edit xtolx2:edit xtolzr:edit"},
        {"File Names and File Switches",
         "xfnbao:file xfnips:file xfnlog:file xfnlps:file xfnmps:file xfnmsg:file xfnpro:file xfnsav:file xfnsta:file"},
    };
    constexpr const char* kinds[] = {"", "radio", "check", "combo", "edit", "file"};
    const PageContents contents{ParameterPage(*model)};
    ASSERT_EQ(contents.sections().size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const TARQPageSection& section = contents.sections()[i];
        std::string shown;
        for (const TARQPageItem& item : std::span(section.items, static_cast<std::size_t>(section.itemCount))) {
            shown += fmt::format("{}{}:{}", shown.empty() ? "" : " ", item.name, kinds[item.kind]);
        }
        EXPECT_EQ(section.title, std::string(expected[i].first));
        EXPECT_EQ(shown, expected[i].second);
    }
}

TEST_F(ParameterPageTest, ItemTellsValueDefaultLimitsAndOptions) {
    ASSERT_THAT(model->put_Parameter("xminmx", Variant("MAX")), succeeds());
    ASSERT_THAT(model->put_Parameter("xabgap", Variant(0.5)), succeeds());
    const PageContents contents{ParameterPage(*model)};
    const auto told = [&](std::size_t section, std::size_t position) {
        const TARQPageItem& item = contents.sections()[section].items[position];
        std::string text = fmt::format("{} {} '{}' '{}' '{}' '{}' {}", item.name, item.type, item.value,
                                       item.defaultValue, item.minimum, item.maximum, item.maximumLength);
        for (const TARQPageOption& option : std::span(item.options, static_cast<std::size_t>(item.optionCount))) {
            text += fmt::format(" {}={}", option.value, option.text);
        }
        return text;
    };
    EXPECT_EQ(told(0, 0), "xminmx 3 'max' 'min' '' '' 8 min=Minimize. max=Maximize.");
    EXPECT_EQ(told(1, 0), "xabgap 2 '0.5' '0' '0' '1e+20' 0");
    EXPECT_EQ(told(2, 19), "xrduce 1 '2' '2' '0' '2' 0 2=Carry out LP-preprocessing. 0=");
    EXPECT_EQ(told(4, 5),
              "xscale 1 '2' '2' '0' '2' 0 0=No scaling. 1=Row-wise scaling. 2=Row- and column-wise scaling.");
    EXPECT_EQ(told(6, 0), "xfnbao 3 '' '' '' '' 256");
}

TEST_F(ParameterPageTest, RefusedRowsAreToldInTableOrderAndTheOthersWritten) {
    ParameterPage page(*model);
    // None of these is a value of its row, be it of no number, beyond the limits or too long.
    const std::pair<const char*, const char*> refused[] = {
        {"xmxnod", "99999999999"}, {"xmreal", "2001"}, {"xglgap", "0,5"}, {"xmiter", "1e3"},
        {"xabgap", "nan"},         {"xadcol", " 7"},   {"xadrow", ""},    {"xfnlog", "long"},
    };
    for (const auto& [name, text] : refused) {
        page.edit(name, text == std::string_view("long") ? std::string(257, 'f') : text);
    }
    page.edit("nobody", "1");
    page.edit("xautom", "0");
    page.edit("xtolre", "1e-8");
    page.edit("xfnsta", "run 7.sta");
    page.edit("xminmx", "max");
    const std::vector<std::string> expected = {
        "Parameter xabgap could not be set.", "Parameter xadcol could not be set.",
        "Parameter xadrow could not be set.", "Parameter xfnlog could not be set.",
        "Parameter xglgap could not be set.", "Parameter xmiter could not be set.",
        "Parameter xmreal could not be set.", "Parameter xmxnod could not be set.",
    };
    EXPECT_EQ(texts(page.apply()), expected);
    EXPECT_EQ(parameter("xmreal").integer(), 0);
    EXPECT_EQ(parameter("xautom").integer(), 0);
    EXPECT_EQ(parameter("xtolre").real(), 1e-8);
    EXPECT_EQ(parameter("xfnsta").text(), "run 7.sta");
    EXPECT_EQ(parameter("xminmx").text(), "max");
}

TEST_F(ParameterPageTest, OnlyAnApplyBehindAnEditWritesAndThenEveryRow) {
    const double unround = 0.1 + 0.2;  // its text is another number
    ASSERT_THAT(model->put_Parameter("xabgap", Variant(unround)), succeeds());
    ASSERT_THAT(model->put_Parameter("xbound", Variant("B1")), succeeds());
    ParameterPage page(*model);
    ASSERT_THAT(model->put_Parameter("xabgap", Variant(9)), succeeds());
    ASSERT_THAT(model->put_Parameter("xbound", Variant("B2")), succeeds());
    EXPECT_TRUE(page.apply().empty());
    EXPECT_EQ(parameter("xbound").text(), "B2");
    page.edit("xmreal", "5");
    EXPECT_TRUE(page.apply().empty());
    EXPECT_EQ(parameter("xbound").text(), "B1") << "shown or not, the page's value is written";
    EXPECT_EQ(parameter("xabgap").real(), unround);
    ASSERT_THAT(model->put_Parameter("xmreal", Variant(7)), succeeds());
    EXPECT_TRUE(page.apply().empty());
    EXPECT_EQ(parameter("xmreal").integer(), 7) << "written once";
}

TEST_F(ParameterPageTest, RowOfAnUnknownTypeIsAnInternalErrorOfItsOwn) {
    std::vector<ParameterRow> rows(parameterRows().begin(), parameterRows().end());
    rows[1].type = static_cast<ParameterType>(7);
    ParameterPage page(*model, rows);
    page.edit("xadnon", "-1");
    const std::vector<PageMessage> messages = page.apply();
    EXPECT_EQ(texts(messages),
              (std::vector<std::string>{"Internal error in TARQ parameter mapping. Contact developper.",
                                        "Parameter xadnon could not be set."}));
    EXPECT_EQ(messages[0].icon, TARQPageStop);
    EXPECT_EQ(messages[1].icon, TARQPageWarning);
}

}  // namespace
}  // namespace tarq
