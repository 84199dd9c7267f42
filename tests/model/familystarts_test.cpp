// Where families begin and names stand in a table that grows and shrinks, beside a walk over all of it.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "interfaces/ifamilyidentity.h"
#include "model/modeledit.h"
#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

class NumberedFamily final : public IFamilyIdentity {
public:
    explicit NumberedFamily(std::uint64_t number) : number_(number) {}
    Status QueryInterface(const Guid& interfaceId, void** out) override {
        if (interfaceId != IUnknown::id && interfaceId != IFamilyIdentity::id) return status::wrongClass;
        *out = static_cast<IFamilyIdentity*>(this);
        return status::ok;
    }
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override { return 1; }
    std::uint64_t familyNumber() const override { return number_; }

private:
    std::uint64_t number_;
};

TEST(FamilyMarkTest, ObjectIsKnownByItsNumberAndNotByItsAddress) {
    NumberedFamily five(5);
    NumberedFamily fiveElsewhere(5);
    NumberedFamily six(6);
    EXPECT_TRUE(FamilyMark::of(&five) == FamilyMark::of(&fiveElsewhere));
    EXPECT_FALSE(FamilyMark::of(&five) == FamilyMark::of(&six));
    EXPECT_TRUE(FamilyMark::of(nullptr) == nullptr);
    EXPECT_FALSE(FamilyMark::of(&five) == nullptr);
}

TEST(FamilyStartsTest, FirstMembersAndNamesAgreeWithAWalkAfterAnyEdits) {
    std::mt19937 random(771);
    const auto below = [&](std::int32_t limit) {
        return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(limit));
    };
    std::vector<NumberedFamily> families;
    for (std::uint64_t number = 1; number <= 8; ++number) families.emplace_back(number);
    ModelStore store;
    for (int step = 0; step < 4000; ++step) {
        const std::int32_t count = store.rowCount();
        NumberedFamily& family = families[static_cast<std::size_t>(below(8))];
        switch (below(8)) {
            case 0:
                if (count > 0) {
                    const std::int32_t first = 1 + below(count);
                    store.remove<RowRecord>(first, first + below(6));
                }
                break;
            case 1:
                clearFamily<RowRecord>(store, &family);
                break;
            case 2:
                if (below(40) == 0) store.clear();
                ASSERT_THAT(store.add(RowRecord()), succeeds());
                break;
            default:
                // Members that stand apart too, which only clients of their own make.
                for (std::int32_t member = below(4); member >= 0; --member) {
                    ASSERT_THAT(
                        addFamilyMember<RowRecord>(store, std::to_string(step) + '.' + std::to_string(member), &family),
                        succeeds());
                }
        }
        for (NumberedFamily& each : families) {
            const FamilyMark mark = FamilyMark::of(&each);
            std::int32_t expected = 0;
            while (expected < store.rowCount() && store.row(expected).family != mark) ++expected;
            ASSERT_EQ(store.table<RowRecord>().findFamily(mark), expected == store.rowCount() ? -1 : expected)
                << "step " << step;
        }
        for (std::int32_t row = 0; row < store.rowCount(); ++row) {
            const std::string& name = store.row(row).name;
            ASSERT_EQ(store.findRow(name), name.empty() ? -1 : row) << "step " << step;
        }
    }
}

}  // namespace
}  // namespace tarq
