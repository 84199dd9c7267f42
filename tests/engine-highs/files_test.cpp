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
    FilesTest() { folder_ = mkdtemp((testing::TempDir() + "/engineXXXXXX").data()); }
    ~FilesTest() override { std::filesystem::remove_all(folder_); }

    /// The parameters of four names, and others.
    [[nodiscard]] Parameters names(const Parameters& others) const {
        Parameters all = others;
        for (const char* name : {"log", "sta", "lps", "ips"}) {
            all.push_back(std::string("xfn") + name + "='" + path(name) + "'");
        }
        return all;
    }
    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }
    [[nodiscard]] std::string read(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(path(name)).rdbuf();
        return text.str();
    }
    std::filesystem::path folder_;
};

TEST_F(FilesTest, LevelsDecideWhichFilesAreWritten) {
    TestModel model = smallLp();
    model.type[0] = TarqIntegerColumn;
    const std::pair<Parameters, const char*> levels[] = {{{"xoutlv=0", "xoutsl=0"}, ""},
                                                         {{"xoutlv=1", "xoutsl=0"}, "sta "},
                                                         {{"xoutlv=2", "xoutsl=1"}, "log sta lps ips "},
                                                         {{"xoutlv=3", "xoutsl=2"}, "log sta lps ips "}};
    for (const auto& [parameters, files] : levels) {
        ASSERT_EQ(optimizeIp(model, names(parameters)).result, TarqSuccess);
        std::string written;
        for (const char* name : {"log", "sta", "lps", "ips"}) {
            if (std::filesystem::remove(path(name))) written += std::string(name) + " ";
        }
        EXPECT_EQ(written, files);
    }
}

TEST_F(FilesTest, FilesHoldWhatTheirLevelSays) {
    ASSERT_EQ(optimizeLp(smallLp(), names({"xoutsl=1"})).result, TarqSuccess);
    EXPECT_THAT(read("lps"), HasSubstr("status     optimal\nobjective  -5\n"));
    EXPECT_THAT(read("lps"), HasSubstr("COLUMNS"));
    EXPECT_THAT(read("lps"), Not(HasSubstr("ROWS")));
    ASSERT_EQ(optimizeLp(smallLp(), names({"xoutsl=2"})).result, TarqSuccess);
    EXPECT_THAT(read("lps"), HasSubstr("ROWS"));
    EXPECT_FALSE(std::filesystem::exists(path("log")));
    EXPECT_THAT(read("sta"), HasSubstr("rows               2\n"));
    EXPECT_THAT(read("sta"), HasSubstr("objective          -5\n"));
    ASSERT_EQ(optimizeLp(denseLp(20), names({"xoutlv=2"})).result, TarqSuccess);
    const std::string plain = read("log");
    EXPECT_THAT(plain, HasSubstr("Presolving"));
    ASSERT_EQ(optimizeLp(denseLp(20), names({"xoutlv=3"})).result, TarqSuccess);
    EXPECT_GT(read("log").size(), plain.size());
}

TEST_F(FilesTest, UnwritableFilesDontStopTheRun) {
    std::filesystem::remove_all(folder_);
    TestModel model = smallLp();
    model.type[0] = TarqIntegerColumn;
    ASSERT_EQ(optimizeLp(model, names({"xoutlv=2"})).result, TarqSuccess);
    EXPECT_THAT(message(), HasSubstr("can't be written"));
    EXPECT_EQ(solveIp().solutionStatus, TarqIPSolutionOptimal);
    // Also what the LP stage could not write.
    EXPECT_THAT(message() + get("xline2"), AllOf(HasSubstr("xfnlog"), HasSubstr("xfnlps"), HasSubstr("xfnips")));
    ASSERT_EQ(optimizeLp(smallLp(), {"xoutlv=2", "xfnlog='/dev/full'"}).result, TarqSuccess);
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
    for (const Parameters& parameters :
         combinations({{"xoutlv=0", "xoutlv=3"}, {"xlptyp=0", "xlptyp=2", "xlptyp=4"}})) {
        optimizeLp(denseLp(20), parameters);
        optimizeLp(TestModel{}.column(0, 1, 1).row(5, {1}, 6), parameters);
        prepare(denseLp(20), parameters);
        solveLp(5);
        prepare(hardIp(), parameters);
        set("xmxnod=20");
        solveLp();
        solveIp();
    }
    std::fflush(nullptr);
    dup2(oldOutput, 1);
    dup2(oldErrors, 2);
    for (const int descriptor : {target, oldOutput, oldErrors}) close(descriptor);
    EXPECT_THAT(read("streams"), IsEmpty());
}

}  // namespace tarq::test
