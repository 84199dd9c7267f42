// The files an engine writes, and that it writes nothing else.
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "loadedengine.h"

namespace tarq::test {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class FilesTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        std::string path = testing::TempDir() + "/engineXXXXXX";
        ASSERT_NE(mkdtemp(path.data()), nullptr);
        folder_ = path;
    }
    void TearDown() override {
        EngineTest::TearDown();
        std::filesystem::remove_all(folder_);
    }

    [[nodiscard]] std::vector<std::string> names(const std::vector<std::string>& others) const {
        std::vector<std::string> all{"xfnlog='" + path("log") + "'", "xfnsta='" + path("sta") + "'",
                                     "xfnlps='" + path("lps") + "'", "xfnips='" + path("ips") + "'"};
        all.insert(all.end(), others.begin(), others.end());
        return all;
    }
    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }
    [[nodiscard]] std::string read(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(path(name)).rdbuf();
        return text.str();
    }
    [[nodiscard]] std::string written() const {
        std::string list;
        for (const char* name : {"log", "sta", "lps", "ips"}) {
            if (std::filesystem::exists(path(name))) list += std::string(name) + " ";
        }
        return list;
    }
    void clean() const {
        for (const auto& file : std::filesystem::directory_iterator(folder_)) std::filesystem::remove(file);
    }

    std::filesystem::path folder_;
};

TEST_F(FilesTest, LevelsDecideWhichFilesAreWritten) {
    struct Case {
        std::vector<std::string> parameters;
        const char* written;
    };
    TestModel model = smallLp();
    model.type[0] = 1;
    for (const Case& level :
         {Case{{"xoutlv=0", "xoutsl=0"}, ""}, Case{{"xoutlv=1", "xoutsl=0"}, "sta "},
          Case{{"xoutlv=2", "xoutsl=1"}, "log sta lps ips "}, Case{{"xoutlv=3", "xoutsl=2"}, "log sta lps ips "}}) {
        clean();
        ASSERT_EQ(optimizeIp(model, names(level.parameters)).result, 0);
        EXPECT_EQ(written(), level.written);
    }
    clean();
    ASSERT_EQ(optimizeIp(model, {"xoutlv=3", "xoutsl=2"}).result, 0);
    EXPECT_EQ(written(), "");
}

TEST_F(FilesTest, SolutionFilesHoldColumnsAndRows) {
    ASSERT_EQ(optimizeLp(smallLp(), names({"xoutsl=1"})).result, 0);
    EXPECT_THAT(read("lps"), HasSubstr("status     optimal\nobjective  -5\n"));
    EXPECT_THAT(read("lps"), HasSubstr("COLUMNS"));
    EXPECT_THAT(read("lps"), Not(HasSubstr("ROWS")));
    ASSERT_EQ(optimizeLp(smallLp(), names({"xoutsl=2"})).result, 0);
    EXPECT_THAT(read("lps"), HasSubstr("ROWS"));
    EXPECT_EQ(written(), "sta lps ");
    EXPECT_THAT(read("sta"), HasSubstr("rows               2\n"));
    EXPECT_THAT(read("sta"), HasSubstr("objective          -5\n"));
}

TEST_F(FilesTest, TheExtendedLogSaysMore) {
    ASSERT_EQ(optimizeLp(denseLp(20), names({"xoutlv=2"})).result, 0);
    const std::string plain = read("log");
    EXPECT_THAT(plain, HasSubstr("Presolving"));
    ASSERT_EQ(optimizeLp(denseLp(20), names({"xoutlv=3"})).result, 0);
    EXPECT_GT(read("log").size(), plain.size());
}

TEST_F(FilesTest, UnwritableFilesDontStopTheRun) {
    std::filesystem::remove_all(folder_);
    TestModel model = smallLp();
    model.type[0] = 1;
    ASSERT_EQ(optimizeLp(model, names({"xoutlv=2"})).result, 0);
    EXPECT_THAT(message(), HasSubstr("can't be written"));
    EXPECT_EQ(solveIp().solutionStatus, 0);
    // Also what the LP stage could not write.
    EXPECT_THAT(message() + get("xline2"), AllOf(HasSubstr("xfnlog"), HasSubstr("xfnlps"), HasSubstr("xfnips")));
    ASSERT_EQ(optimizeLp(smallLp(), {"xoutlv=2", "xfnlog='/dev/full'"}).result, 0);
    EXPECT_EQ(message(), "The file /dev/full of xfnlog can't be written.");
}

TEST_F(FilesTest, TheStandardStreamsStayEmpty) {
    const std::string file = path("streams");
    std::fflush(nullptr);
    const int target = open(file.c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0600);
    const int oldOutput = dup(1);
    const int oldErrors = dup(2);
    dup2(target, 1);
    dup2(target, 2);
    for (const char* level : {"xoutlv=0", "xoutlv=3"}) {
        for (const char* algorithm : {"xlptyp=0", "xlptyp=2", "xlptyp=4"}) {
            optimizeLp(denseLp(20), {level, algorithm});
            optimizeLp(TestModel{}.column(0, 1, 1).row(5, {1}, 6), {level, algorithm});
            ASSERT_EQ(put(denseLp(20)), 0);
            solveLp(5);
        }
        optimizeLp(hardIp(), {level, "xmxnod=20"});
        solveIp();
    }
    std::fflush(nullptr);
    dup2(oldOutput, 1);
    dup2(oldErrors, 2);
    for (const int descriptor : {target, oldOutput, oldErrors}) close(descriptor);
    EXPECT_THAT(read("streams"), IsEmpty());
}

}  // namespace tarq::test
