// Calls that run out of memory, at each of their allocations in turn, lose nothing.
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "modelfixture.h"

namespace {

std::atomic<std::int64_t> allocationsLeft{-1};  // below 0: no limit

}  // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
    if (allocationsLeft >= 0 && allocationsLeft-- == 0) throw std::bad_alloc();
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
// Inlined, the compiler would take them for a mismatch.
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace tarq {
namespace {

/// Repeats a call with ever more memory until it succeeds, and checks what each failure leaves.
void failAtEveryAllocation(const std::function<Status()>& call, const std::function<void()>& checkNothingLost) {
    std::int64_t limit = -1;
    for (Status ended = status::outOfMemory; !ended.isOk();) {
        allocationsLeft = ++limit;
        ended = call();
        allocationsLeft = -1;
        ASSERT_TRUE(ended.isOk() || ended == status::outOfMemory);
        if (!ended.isOk()) checkNothingLost();
    }
    EXPECT_GT(limit, 0);
}

TEST(OutOfMemoryTest, RenamedElementKeepsItsCells) {
    SafeArray names = SafeArray::of(std::vector<std::string>{"a", "p.q", "q"});
    // A name as others, one with a point, one whose cells meet others, and one that is there.
    for (const std::string name : {"a name too long to be kept in place", "a.p", "q.p", "q"}) {
        const auto array = createObject<ITARQArray>("TARQArray");
        ASSERT_THAT(array->Init(ValueList({Variant::byReference(names), Variant::byReference(names)})), succeeds());
        ASSERT_THAT(array->SetValues(ValueList({Variant(1), Variant(2), Variant(3), Variant(4)})), succeeds());
        const auto expectAsBefore = [&] {
            std::int32_t number = 1;
            for (const char* const cell : {".a.a", ".a.p.q", ".a.q", ".p.q.a"}) {
                Variant value;
                EXPECT_THAT(array->get_ValueByFullIndexName(cell, &value), succeeds()) << cell;
                EXPECT_EQ(value.integer(), number++) << name;
            }
        };
        failAtEveryAllocation([&] { return array->put_IndexsetElement(1, 1, name); }, expectAsBefore);
        ASSERT_THAT(array->put_IndexsetElement(1, 1, "a"), succeeds());
        failAtEveryAllocation([&] { return array->TransposeMatrix(); }, [] {});
    }
}

TEST_F(ModelTest, ModelWithoutMemoryForNewNamesKeepsTheOld) {
    for (const char* const name : {"R2", "C3", "x"}) {
        ASSERT_THAT(model->AddCol(0, 1, TARQColType::Continuous, Variant::missing(), Variant(name)), succeeds());
        ASSERT_THAT(model->AddRow(0, 1, Variant(name)), succeeds());
    }
    failAtEveryAllocation([&] { return model->AutoRenameVariables(); },
                          [&] {
                              EXPECT_EQ(model->AddRow(0, 1, Variant("R2")), status::badRowName);
                              EXPECT_EQ(model->AddRow(0, 1, Variant("x")), status::badRowName);
                              std::string name;
                              EXPECT_THAT(model->get_ColName(2, &name), succeeds());
                              EXPECT_EQ(name, "C3");
                          });
    EXPECT_EQ(model->AddRow(0, 1, Variant("R3")), status::badRowName);
}

}  // namespace
}  // namespace tarq
