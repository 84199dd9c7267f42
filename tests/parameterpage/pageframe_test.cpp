// Showing the page through the objects, with a library in which the test plays the person.
#include "parameterpage/pageframe.h"

#include <iterator>
#include <thread>

#include "interfaces/ipropertypage.h"
#include "platform/dynamiclibrary.h"
#include "tarq/page.h"
#include "tests/component/modelfixture.h"

namespace tarq {
namespace {

using Person = int32_t (*)(const TARQPage*);
ITARQModel* shownModel = nullptr;

auto cannotShow() { return raises(status::propertyPage, "Could not show property page."); }

int32_t applyNumber(const TARQPage& page, const char* number) {
    const struct TARQPageEdit edits[] = {{"xmreal", number}};
    std::int32_t messageCount = 0;
    const TARQPageMessage* messages = nullptr;
    page.apply(page.context, 1, edits, &messageCount, &messages);
    return messageCount == 1 && messages[0].text == std::string("Parameter xmreal could not be set.") ? 2 : 1;
}

class PageFrameTest : public ModelTest {
protected:
    PageFrameTest() { shownModel = model.get(); }

    Status showTo(Person person) {
        DynamicLibrary library = DynamicLibrary::load(pageLibraryName);
        *static_cast<Person*>(library.symbol("playedPerson")) = person;
        return model->ShowPropertyPage(&dirty);
    }

    std::int32_t dirty = -1;
};

TEST_F(PageFrameTest, DirtyTellsWhetherAnApplyTookPlaceThisTime) {
    EXPECT_EQ(model->ShowPropertyPage(nullptr), status::nullPointer);
    ASSERT_THAT(showTo([](const TARQPage* page) { return applyNumber(*page, "12") == 1 ? 1 : 0; }), succeeds());
    EXPECT_EQ(dirty, 1);
    EXPECT_EQ(valueOf<Variant>(&ITARQModel::get_Parameter, std::string("xmreal")).integer(), 12);
    ASSERT_THAT(showTo([](const TARQPage* page) {
                    const bool told = page->caption == std::string("TARQ Control") && page->left == 10;
                    return told && page->top == 10 && page->sectionCount == 7 ? 1 : 0;
                }),
                succeeds());
    EXPECT_EQ(dirty, 0);
    ASSERT_THAT(showTo([](const TARQPage* page) { return applyNumber(*page, "2001") == 2 ? 1 : 0; }), succeeds());
    EXPECT_EQ(dirty, 1) << "also when a parameter was refused";
}

TEST_F(PageFrameTest, SecondPageIsRefusedAndLeavesTheFirstAlone) {
    const auto again = [](const TARQPage* page) {
        (void)applyNumber(*page, "3");
        std::int32_t ignored = -1;
        int refused = shownModel->ShowPropertyPage(&ignored) == status::propertyPage ? 1 : 0;
        std::thread([&] { refused += shownModel->ShowPropertyPage(&ignored) == status::propertyPage ? 1 : 0; }).join();
        return refused == 2 && ignored == -1 ? 1 : 0;
    };
    ASSERT_THAT(showTo(again), succeeds());
    EXPECT_EQ(dirty, 1);
    ASSERT_THAT(showTo([](const TARQPage*) { return 1; }), succeeds()) << "and the next one is shown";
}

TEST_F(PageFrameTest, PageThatCannotBeShownIsAFailure) {
    EXPECT_THAT(showTo([](const TARQPage*) { return 0; }), cannotShow());
    EXPECT_THAT(showTo([](const TARQPage*) -> int32_t { throw 1; }), cannotShow());
    EXPECT_EQ(dirty, -1);
    bool applied = false;
    EXPECT_EQ(showParameterPage(*model, applied, "/nowhere/libtarqpage.so"), status::libraryNotFound);
    EXPECT_EQ(showParameterPage(*model, applied, "libm.so.6"), status::entryPointsMissing);
    const auto page = createObject<IPropertyPage>("tarq.tarqprop1");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->Show(page.get(), &dirty), status::wrongClass);
    EXPECT_EQ(page->Show(nullptr, &dirty), status::nullPointer);
}

}  // namespace
}  // namespace tarq
