#include "tarq/frame/objecterror.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <thread>

#include "tarq/frame/guid.h"

namespace tarq {
namespace {

constexpr Guid classId{0x12345678, 0x9ABC, 0xDEF0, {1, 2, 3, 4, 5, 6, 7, 0xFF}};

TEST(ObjectErrorTest, RaiseRecordsForItsThreadOnly) {
    EXPECT_EQ(raise(classId, "Bad value for type.", status::invalidArgument), status::invalidArgument);
    std::thread([] {
        EXPECT_EQ(lastError(), nullptr);
        EXPECT_EQ(raise(Guid{}, "other", status::noSuchNonzero), status::noSuchNonzero);
    }).join();
    ASSERT_NE(lastError(), nullptr);
    EXPECT_EQ(lastError()->classId, classId);
    EXPECT_EQ(lastError()->status, status::invalidArgument);
    EXPECT_EQ(takeLastError()->description, "Bad value for type.");
    EXPECT_EQ(lastError(), nullptr);
}

TEST(ObjectErrorTest, OutcomeWithoutDescriptionLeavesTheRecord) {
    clearLastError();
    EXPECT_EQ(raise(classId, Outcome(status::nullPointer)), status::nullPointer);
    EXPECT_EQ(lastError(), nullptr);
    EXPECT_EQ(raise(classId, Outcome(status::syntaxError, "words")), status::syntaxError);
    EXPECT_EQ(raise(classId, Outcome()), status::ok);
    EXPECT_EQ(takeLastError()->description, "words");
}

TEST(GuidTest, TextFormReadsBackAndOtherFormsFail) {
    const std::string text = "{12345678-9ABC-DEF0-0102-0304050607FF}";
    EXPECT_EQ(guidText(classId), text);
    Guid guid;
    EXPECT_TRUE(parseGuid("{12345678-9abc-def0-0102-0304050607ff}", guid));
    EXPECT_EQ(guid, classId);
    for (const std::size_t position : {0U, 1U, 9U, 20U, 37U}) {
        for (const char wrong : {'x', '-', '+', ' '}) {
            std::string damaged = text;
            if (damaged[position] == wrong) continue;
            damaged[position] = wrong;
            EXPECT_FALSE(parseGuid(damaged, guid)) << damaged;
        }
    }
    EXPECT_FALSE(parseGuid("", guid));
    EXPECT_FALSE(parseGuid(text + "0", guid));
    EXPECT_EQ(guid, classId);
}

}  // namespace
}  // namespace tarq
