#include "platform/userlocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <optional>
#include <string>

namespace tarq {
namespace {

/// Sets an environment variable, or unsets it for an empty optional, and restores it at the end.
class Environment {
public:
    Environment(const char* name, std::optional<std::string> value) : name_(name) {
        if (const char* const before = std::getenv(name)) before_ = before;
        set(value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { set(before_); }

private:
    void set(const std::optional<std::string>& value) {
        if (value) {
            setenv(name_, value->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }
    const char* name_;
    std::optional<std::string> before_;
};

TEST(UserLocaleTest, FirstVariableThatIsSetAndNotEmptyNamesTheLocale) {
    struct {
        std::optional<std::string> all, numeric, lang;
        const char* expected;
    } const cases[] = {
        {"de_DE.UTF-8", "fr_FR", "en_US", "de_DE.UTF-8"},
        {"", "fr_FR", "en_US", "fr_FR"},
        {std::nullopt, "", "en_US", "en_US"},
        {std::nullopt, std::nullopt, std::nullopt, "C"},
    };
    for (const auto& row : cases) {
        const Environment all("LC_ALL", row.all);
        const Environment numeric("LC_NUMERIC", row.numeric);
        const Environment lang("LANG", row.lang);
        EXPECT_EQ(userLocaleName(), row.expected);
    }
}

TEST(UserLocaleTest, UnknownLocaleHasTheMarksOfC) {
    const NumberMarks marksOfC{".", ""};
    EXPECT_EQ(numberMarksOf("C"), marksOfC);
    EXPECT_EQ(numberMarksOf("xx_YY.UTF-8"), marksOfC);
    EXPECT_EQ(numberMarksOf(""), marksOfC);
}

TEST(UserLocaleTest, GermanMarksAreReadWithoutTouchingTheProcess) {
    const NumberMarks marks = numberMarksOf("de_DE.UTF-8");
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    if (marks == NumberMarks{}) GTEST_SKIP() << "this system has no German locale";
    EXPECT_EQ(marks, (NumberMarks{",", "."}));
}

}  // namespace
}  // namespace tarq
