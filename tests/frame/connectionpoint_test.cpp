// Subscriptions to an object's events.
#include "tarq/frame/connectionpoint.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include "tarq/frame/countedobject.h"
#include "tests/frame/panel.h"
#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

using testing::ElementsAre;

class IPanelEvents : public IDispatch {
public:
    static constexpr Guid id{0x2D0C5E14, 0x39F2, 0x4C5B, {0x8C, 0x1D, 0x50, 0x0A, 0x6E, 0x7C, 0x90, 0x11}};
    static const InterfaceTable& memberTable() {
        static const InterfaceTable table("IPanelEvents", id, "", {});
        return table;
    }

protected:
    ~IPanelEvents() = default;
};

class Sink final : public CountedObject<Sink, IPanelEvents> {
public:
    explicit Sink(std::function<Status(std::int32_t)> handler) : handler_(std::move(handler)) {}
    Status Invoke(std::int32_t member, std::uint16_t kinds, const InvokeArguments& arguments, Variant* /*result*/,
                  std::uint32_t* /*argument*/) override {
        EXPECT_EQ(kinds, invoke::method);
        EXPECT_TRUE(arguments.values.empty());
        return handler_(member);
    }

private:
    friend std::default_delete<Sink>;
    ~Sink() = default;
    std::function<Status(std::int32_t)> handler_;
};

class ConnectionPointTest : public testing::Test {
protected:
    std::uint32_t subscribe(int number) {
        return subscribe([this, number](std::int32_t event) {
            calls.push_back(10 * event + number);
            return Status{static_cast<std::uint32_t>(number)};
        });
    }
    std::uint32_t subscribe(std::function<Status(std::int32_t)> handler) {
        const Ref<IPanelEvents> sink(new Sink(std::move(handler)));
        std::uint32_t cookie = 0;
        EXPECT_THAT(point.Advise(sink.get(), &cookie), succeeds());
        return cookie;
    }

    Ref<IPanel> owner{new Panel};
    ConnectionPoint point{*owner.get(), IPanelEvents::id};
    std::vector<int> calls;
};

TEST_F(ConnectionPointTest, SinksAreCalledInTheOrderOfTheirSlotsAndFreeSlotsAreReused) {
    (void)subscribe(1);
    const std::uint32_t second = subscribe(2);
    (void)subscribe(3);
    EXPECT_EQ(point.fire(1), Status{3});
    ASSERT_THAT(point.Unadvise(second), succeeds());
    (void)point.fire(1);
    EXPECT_EQ(subscribe(4), second);
    (void)point.fire(2);
    EXPECT_THAT(calls, ElementsAre(11, 12, 13, 11, 13, 21, 24, 23));
}

TEST_F(ConnectionPointTest, OnlyASinkOfTheseEventsIsTaken) {
    std::uint32_t cookie = 7;
    EXPECT_EQ(point.Advise(owner.get(), &cookie), status::cannotConnect);
    EXPECT_EQ(cookie, 0U);
    EXPECT_EQ(point.Advise(nullptr, &cookie), status::nullPointer);
    EXPECT_EQ(point.Unadvise(0), status::noConnection);
    EXPECT_EQ(point.Unadvise(1), status::noConnection);
    const std::uint32_t taken = subscribe(1);
    ASSERT_THAT(point.Unadvise(taken), succeeds());
    EXPECT_EQ(point.Unadvise(taken), status::noConnection);
}

TEST_F(ConnectionPointTest, SinkMayUnsubscribeItselfAndSubscribeOthersInTheEvent) {
    std::uint32_t own = 0;
    own = subscribe([&](std::int32_t /*event*/) {
        EXPECT_THAT(point.Unadvise(own), succeeds());
        (void)subscribe(1);
        (void)subscribe(2);
        return status::ok;
    });
    (void)point.fire(1);
    EXPECT_THAT(calls, ElementsAre(12)) << "the slot of the first lies behind, the new one ahead";
    calls.clear();
    (void)point.fire(1);
    EXPECT_THAT(calls, ElementsAre(11, 12));
}

TEST_F(ConnectionPointTest, ExceptionOfASinkKeepsTheOthersFromNothing) {
    (void)subscribe([](std::int32_t /*event*/) -> Status { throw std::runtime_error("sink"); });
    (void)subscribe(2);
    EXPECT_EQ(point.fire(1), Status{2});
    EXPECT_THAT(calls, ElementsAre(12));
}

TEST_F(ConnectionPointTest, SinkMayEndTheThreadThatCallsIt) {
    (void)subscribe([](std::int32_t /*event*/) -> Status { pthread_exit(nullptr); });
    std::thread([this] { (void)point.fire(1); }).join();
    EXPECT_EQ(subscribe(2), 2U) << "nothing stays locked";
}

TEST_F(ConnectionPointTest, SharesTheLifeOfItsOwner) {
    Ref<IConnectionPoint> reference(&point);
    IUnknown* container = nullptr;
    ASSERT_THAT(reference->GetConnectionPointContainer(&container), succeeds());
    EXPECT_EQ(Ref<IUnknown>::adopt(container), owner.query<IUnknown>());
    Guid interfaceId;
    ASSERT_THAT(reference->GetConnectionInterface(&interfaceId), succeeds());
    EXPECT_EQ(interfaceId, IPanelEvents::id);
    EXPECT_EQ(owner->AddRef(), 3U);
    owner->Release();
}

}  // namespace
}  // namespace tarq
