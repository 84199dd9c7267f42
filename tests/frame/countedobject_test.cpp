// Life, identity and creation of objects, free-standing and as parts of others.
#include "tarq/frame/countedobject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tarq/frame/module.h"
#include "tests/frame/panel.h"
#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

template <class Interface>
Status create(Ref<Interface>& object, IUnknown* outer = nullptr) {
    void* found = nullptr;
    const Status created = createInstance<Panel>(outer, Interface::id, &found);
    object = Ref<Interface>::adopt(static_cast<Interface*>(found));
    return created;
}

/// Holds a panel as a part and shows that part's knob as its own.
class Cabinet final : public CountedObject<Cabinet, IUnknown> {
public:
    static inline int alive = 0;
    Cabinet() { ++alive; }
    Status QueryPart(const Guid& interfaceId, void** out) { return part_->QueryInterface(interfaceId, out); }
    Status fill() {
        void* found = nullptr;
        const Status created = createInstance<Panel>(&shell_, IUnknown::id, &found);
        part_ = Ref<IUnknown>::adopt(static_cast<IUnknown*>(found));
        return created;
    }
    IUnknown& shell() { return shell_; }

private:
    friend std::default_delete<Cabinet>;
    ~Cabinet() { --alive; }

    /// The identity of the whole: what it doesn't know itself it asks its part for.
    class Shell final : public IUnknown {
    public:
        explicit Shell(Cabinet& cabinet) : cabinet_(cabinet) {}
        Status QueryInterface(const Guid& interfaceId, void** out) override {
            if (interfaceId != IUnknown::id) return cabinet_.QueryPart(interfaceId, out);
            *out = this;
            AddRef();
            return status::ok;
        }
        std::uint32_t AddRef() override { return cabinet_.identity().AddRef(); }
        std::uint32_t Release() override { return cabinet_.identity().Release(); }

    private:
        Cabinet& cabinet_;
    };

    Shell shell_{*this};
    Ref<IUnknown> part_;
};

TEST(CountedObjectTest, EveryInterfaceLeadsToTheSameIdentity) {
    Ref<IPanel> panel;
    ASSERT_THAT(create(panel), succeeds());
    const auto knob = panel.query<IKnob>();
    ASSERT_TRUE(knob);
    EXPECT_EQ(knob->turns(), 3);
    EXPECT_EQ(knob.query<IUnknown>(), panel.query<IUnknown>());
    EXPECT_EQ(knob.query<IDispatch>().query<IPanel>(), panel);
    void* other = panel.get();
    EXPECT_EQ(panel->QueryInterface(panelClass, &other), status::wrongClass);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(panel->QueryInterface(IPanel::id, nullptr), status::nullPointer);
}

TEST(CountedObjectTest, LastReleaseEndsTheObjectAndFreesTheModule) {
    const std::int64_t before = module::liveObjects();
    {
        Ref<IPanel> panel;
        ASSERT_THAT(create(panel), succeeds());
        EXPECT_EQ(module::liveObjects(), before + 1);
        const Ref<IPanel> second = panel;
        panel = nullptr;
        EXPECT_EQ(Panel::alive, 1);
    }
    EXPECT_EQ(Panel::alive, 0);
    EXPECT_EQ(module::liveObjects(), before);
}

TEST(CreateInstanceTest, FailureLeavesNoObject) {
    EXPECT_EQ(createInstance<Panel>(nullptr, IPanel::id, nullptr), status::nullPointer);
    Ref<IUnknown> object;
    Panel::refuseConstruction = true;
    EXPECT_EQ(create(object), status::wrongState);
    Panel::refuseConstruction = false;
    EXPECT_FALSE(object);
    void* wrong = &object;
    EXPECT_EQ(createInstance<Panel>(nullptr, panelClass, &wrong), status::wrongClass);
    EXPECT_EQ(wrong, nullptr);
    EXPECT_EQ(Panel::alive, 0);
}

TEST(AggregationTest, InnerPartForwardsItsIdentityToTheOuterObject) {
    auto* const cabinet = new Cabinet;
    Ref<IUnknown> whole(&cabinet->shell());
    ASSERT_THAT(cabinet->fill(), succeeds());
    auto knob = whole.query<IKnob>();
    ASSERT_TRUE(knob);
    EXPECT_EQ(knob.query<IUnknown>(), whole) << "the part's identity is the whole's";
    EXPECT_TRUE(knob.query<IPanel>());
    whole = nullptr;
    EXPECT_EQ(knob->turns(), 3) << "the part's interface holds the whole";
    EXPECT_EQ(Cabinet::alive, 1);
    knob = nullptr;
    EXPECT_EQ(Cabinet::alive, 0);
    EXPECT_EQ(Panel::alive, 0);
}

TEST(AggregationTest, OuterObjectMustAskForTheInnerIdentity) {
    Ref<IUnknown> whole(&(new Cabinet)->shell());
    void* found = nullptr;
    EXPECT_EQ(createInstance<Panel>(whole.get(), IKnob::id, &found), status::noAggregation);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(Panel::alive, 0);
}

}  // namespace
}  // namespace tarq
