// Showing the page through the objects, with a library in which the test plays the person.
#include "parameterpage/pageframe.h"

#include <thread>

#include "interfaces/ipropertypage.h"
#include "platform/dynamiclibrary.h"
#include "tarq/page.h"
#include "tests/component/modelfixture.h"

namespace tarq {
namespace {

using Person = int32_t (*)(const TARQPage*);
ITARQModel* shownModel = nullptr;

/// Sets xmreal and returns how many messages that brings.
std::int32_t applyNumber(const TARQPage& page, const char* number) {
    const TARQPageEdit edit{"xmreal", number};
    std::int32_t messageCount = 0;
    const TARQPageMessage* messages = nullptr;
    page.apply(page.context, 1, &edit, &messageCount, &messages);
    return messageCount;
}

class PageFrameTest : public ModelTest {
protected:
    Status showTo(Person person) {
        shownModel = model.get();
        *static_cast<Person*>(DynamicLibrary::load(pageLibraryName).symbol("playedPerson")) = person;
        return model->ShowPropertyPage(&dirty);
    }

    std::int32_t dirty = -1;
};

TEST_F(PageFrameTest, DirtyTellsWhetherAnApplyTookPlaceThisTime) {
    ASSERT_THAT(showTo([](const TARQPage* page) { return applyNumber(*page, "2001"); }), succeeds());
    EXPECT_EQ(dirty, 1);
    ASSERT_THAT(showTo([](const TARQPage* page) { return page->sectionCount; }), succeeds());
    EXPECT_EQ(dirty, 0);
}

TEST_F(PageFrameTest, SecondPageIsRefusedAndLeavesTheFirstAlone) {
    const auto again = [](const TARQPage* page) {
        std::int32_t ignored = applyNumber(*page, "3");
        int refused = shownModel->ShowPropertyPage(&ignored) == status::propertyPage ? 1 : 0;
        std::thread([&] { refused += shownModel->ShowPropertyPage(&ignored) == status::propertyPage ? 1 : 0; }).join();
        return refused == 2 && ignored == 0 ? 1 : 0;
    };
    ASSERT_THAT(showTo(again), succeeds());
    EXPECT_EQ(dirty, 1);
    ASSERT_THAT(showTo([](const TARQPage*) { return 1; }), succeeds()) << "the next one is shown";
}

TEST_F(PageFrameTest, PageThatCannotBeShownIsAFailure) {
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
