// What the page shows of every parameter, what an apply writes and tells, and the frame of a played library around it.
#include "parameterpage/parameterpage.h"

#include <fmt/format.h>

#include <thread>

#include "parameterpage/pagecontents.h"
#include "parameterpage/pageframe.h"
#include "platform/dynamiclibrary.h"
#include "tarq/interfaces/ipropertypage.h"
#include "tests/component/modelfixture.h"

namespace tarq {
namespace {

using Person = int32_t (*)(const TARQPage*);
ITARQModel* shownModel = nullptr;

/// Sets xmreal as a person would and returns how many messages that brings.
std::int32_t applyNumber(const TARQPage& page, const char* number) {
    const TARQPageEdit edit{"xmreal", number};
    std::int32_t messageCount = 0;
    const TARQPageMessage* messages = nullptr;
    page.apply(page.context, 1, &edit, &messageCount, &messages);
    return messageCount;
}

class ParameterPageTest : public ModelTest {
protected:
    Variant parameter(const char* name) { return valueOf<Variant>(&ITARQModel::get_Parameter, std::string(name)); }
    void set(const char* name, const Variant& value) { ASSERT_THAT(model->put_Parameter(name, value), succeeds()); }
    Status showTo(Person person) {
        shownModel = model.get();
        *static_cast<Person*>(DynamicLibrary::load(pageLibraryName).symbol("playedPerson")) = person;
        return model->ShowPropertyPage(&dirty);
    }

    std::int32_t dirty = -1;
};

TEST_F(ParameterPageTest, EveryParameterStandsInItsPlaceAsItsKindOfItem) {
    // Radio groups, check boxes, lists and files are marked; of the 121 rows, xfnbai and the 12 without a section are
    // not there.
    const std::string_view expected =
        "Optimization Direction: xminmx/r\n"
        "Ressource Limits: xabgap xadcol xadnon xadrow xcbnnd xfrite xfrnds xglgap xmiter xmitip xmmax xmreal xmxdsk "
        "xmxint xmxmin xmxnod xmxpsu xmxtlp\n"
        "LP Parameter: xautom/c xbatyp/r xbndha/r xdjscl/l xdropf xdropm xfiltl xfrinv xipdua xipmem/r xipxov/l "
        "xlptyp/r xluctr xminfi xnproc xnwluf/c xnwluu/c xoripm/l xpreme xrduce/c xxndxm\n"
        "IP Parameter: xbckpa xbndrd xbrheu/l xclict/r xcored/r xcovct/l xeucrd/c xfrnod xgomct xgommc xheutp/l "
        "xhfinb/c xhgap xhrdlb xhrdub xhtlim ximbnd/r ximpli/r xiplpt/r xlifo/r xlocs/l xlotst/r xlpgap xlpmip/r "
        "xmirct/r xmnheu xnewbb/c xnlbab xnlstr xnodbf xnodse xnogap/c xnoitb/c xnopre/c xparnd xparnl xpcini/r "
        "xprlev/r xranha/c xrimpr xusepl/c\n"
        "Other Parameter: xchksw/c xdimcn/r xfrlog xoutlv/l xoutsl/r xscale/r\n"
        "Tolerances: xtold1 xtold2 xtolin xtolpv xtolqi xtolr1 xtolr2 xtolre xtolx xtolx1 xtolx2 xtolzr\n"
        "File Names and File Switches: xfnbao/f xfnips/f xfnlog/f xfnlps/f xfnmps/f xfnmsg/f xfnpro/f xfnsav/f "
        "xfnsta/f\n";
    constexpr const char* marks[] = {"/none", "/r", "/c", "/l", "", "/f"};
    const PageContents contents{ParameterPage(*model)};
    std::string shown;
    for (const TARQPageSection& section : contents.sections()) {
        shown += fmt::format("{}:", section.title);
        for (const TARQPageItem& item : std::span(section.items, static_cast<std::size_t>(section.itemCount))) {
            shown += fmt::format(" {}{}", item.name, marks[item.kind]);
            EXPECT_EQ(item.kind == TARQPageCheckBox, item.optionCount == 2 && *item.options[1].text == 0) << item.name;
        }
        shown += '\n';
    }
    EXPECT_EQ(shown, expected);
}

TEST_F(ParameterPageTest, ItemTellsValueDefaultLimitsAndOptions) {
    set("xminmx", Variant("MAX"));
    set("xabgap", Variant(0.5));
    const PageContents contents{ParameterPage(*model)};
    const auto told = [&](std::size_t section, std::size_t position) {
        const TARQPageItem& item = contents.sections()[section].items[position];
        std::string text = fmt::format("{} {}|{}|{}|{}|{}|{}", item.name, item.type, item.value, item.defaultValue,
                                       item.minimum, item.maximum, item.maximumLength);
        for (std::int32_t i = 0; i < item.optionCount; ++i)
            text += fmt::format(" {}={}", item.options[i].value, item.options[i].text);
        return text;
    };
    EXPECT_EQ(told(0, 0), "xminmx 3|max|min|||8 min=Minimize. max=Maximize.");
    EXPECT_EQ(told(1, 0), "xabgap 2|0.5|0|0|1e+20|0");
    EXPECT_EQ(told(2, 19), "xrduce 1|2|2|0|2|0 2=Carry out LP-preprocessing. 0=");
    EXPECT_EQ(told(6, 0), "xfnbao 3|||||256");
}

TEST_F(ParameterPageTest, RefusedRowsAreToldInTableOrderAndTheOthersWritten) {
    std::vector<ParameterRow> rows(parameterRows().begin(), parameterRows().end());
    rows.front().type = static_cast<ParameterType>(7);
    ParameterPage page(*model, rows);
    std::string expected = "1 Internal error in TARQ parameter mapping. Contact developper.\n";
    const std::string tooLong(257, 'f');
    const char* const refused[][2] = {{"xadcol", " 7"},   {"xadrow", ""},           {"xfnlog", tooLong.c_str()},
                                      {"xglgap", "0,5"},  {"xlpgap", "nan"},        {"xmiter", "1e3"},
                                      {"xmreal", "2001"}, {"xmxnod", "99999999999"}};
    for (const auto& [name, text] : refused) {
        page.edit(name, text);
        expected += fmt::format("2 Parameter {} could not be set.\n", name);
    }
    page.edit("nobody", "1");
    page.edit("xtolre", "1e-8");
    page.edit("xfnsta", "run 7.sta");
    std::string told;
    for (const PageMessage& message : page.apply())
        told += fmt::format("{} {}\n", static_cast<int>(message.icon), message.text);
    EXPECT_EQ(told, expected);
    EXPECT_EQ(parameter("xmreal").integer(), 0);
    EXPECT_EQ(parameter("xtolre").real(), 1e-8);
    EXPECT_EQ(parameter("xfnsta").text(), "run 7.sta");
}

TEST_F(ParameterPageTest, OnlyAnApplyBehindAnEditWritesAndThenEveryRow) {
    const double unround = 0.1 + 0.2;  // its text is another number
    set("xabgap", Variant(unround));
    set("xbound", Variant("B1"));
    ParameterPage page(*model);
    set("xabgap", Variant(9));
    set("xbound", Variant("B2"));
    EXPECT_TRUE(page.apply().empty());
    EXPECT_EQ(parameter("xbound").text(), "B2");
    page.edit("xmreal", "5");
    EXPECT_TRUE(page.apply().empty());
    EXPECT_EQ(parameter("xbound").text(), "B1") << "which the page doesn't show";
    EXPECT_EQ(parameter("xabgap").real(), unround);
    set("xmreal", Variant(7));
    EXPECT_TRUE(page.apply().empty());
    EXPECT_EQ(parameter("xmreal").integer(), 7);
}

TEST_F(ParameterPageTest, DirtyTellsWhetherAnApplyTookPlaceThisTime) {
    ASSERT_THAT(showTo([](const TARQPage* page) { return applyNumber(*page, "2001"); }), succeeds());
    EXPECT_EQ(dirty, 1);
    ASSERT_THAT(showTo([](const TARQPage* page) { return page->sectionCount; }), succeeds());
    EXPECT_EQ(dirty, 0);
}

TEST_F(ParameterPageTest, SecondPageIsRefusedAndLeavesTheFirstAlone) {
    const auto again = [](const TARQPage* page) {
        std::int32_t ignored = applyNumber(*page, "3");
        int refused = shownModel->ShowPropertyPage(&ignored) == status::propertyPage ? 1 : 0;
        std::thread([&] { refused += shownModel->ShowPropertyPage(&ignored) == status::propertyPage ? 1 : 0; }).join();
        return refused == 2 && ignored == 0 ? 1 : 0;
    };
    ASSERT_THAT(showTo(again), succeeds());
    EXPECT_EQ(dirty, 1);
}

TEST_F(ParameterPageTest, PageThatCannotBeShownIsAFailure) {
    EXPECT_THAT(showTo([](const TARQPage*) { return 0; }),
                raises(status::propertyPage, "Could not show property page."));
    EXPECT_EQ(showTo([](const TARQPage*) -> int32_t { throw 1; }), status::propertyPage);
    EXPECT_EQ(dirty, -1);
    bool applied = false;
    EXPECT_EQ(showParameterPage(*model, applied, "/nowhere/libtarqpage.so"), status::libraryNotFound);
    EXPECT_EQ(showParameterPage(*model, applied, "libm.so.6"), status::entryPointsMissing);
    const auto page = createObject<IPropertyPage>("tarq.tarqprop1");
    EXPECT_EQ(page->Show(page.get(), &dirty), status::wrongClass);
}

}  // namespace
}  // namespace tarq
