#include "parameters/inputfile.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>
#if defined(__linux__)
#include <sys/fsuid.h>
#endif

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "tests/support/outcomematchers.h"

namespace tarq {
namespace {

namespace fs = std::filesystem;

struct InputFile : testing::Test {
    InputFile() {
        fs::create_directories(folder / "sub");
        std::ofstream(folder / "model.mod") << "var x;\n";
    }
    ~InputFile() override { fs::remove_all(folder); }

    [[nodiscard]] Outcome check(const std::string& name) const {
        return checkInputFile((folder / name).string(), ".MOD file");
    }

    const fs::path folder = fs::temp_directory_path() / ("tarq_inputfile_" + std::to_string(::getpid()));
};

TEST_F(InputFile, ReasonIsTold) {
    using namespace std::string_literals;
    const std::string badPath = "Could not find .MOD file. Bad path.";
    const std::string badName = "Could not find .MOD file. Bad filename.";
    const std::string otherFailure = "Could not open .MOD file. I/O error.";
    const struct {
        std::string name;
        std::string text;
    } cases[] = {
        {"none.mod", badName}, {"none/model.mod", badPath},        {"none/", badPath}, {"model.mod/model.mod", badPath},
        {"sub", otherFailure}, {"model.mod\0.bak"s, otherFailure},
    };
    EXPECT_THAT(check("model.mod"), succeeds());
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THAT(check("pipe"), succeeds());  // without waiting for a writer
    for (const auto& each : cases) {
        EXPECT_THAT(check(each.name), failsWith(status::fileNotReachable, each.text)) << each.name;
    }
    EXPECT_THAT(checkInputFile("", ".MOD file"), failsWith(status::fileNotReachable, badPath));
    EXPECT_THAT(checkInputFile("no such file", ".MOD file"), failsWith(status::fileNotReachable, badName));
    EXPECT_THAT(checkInputFile("/no such file", ".MOD file"), failsWith(status::fileNotReachable, badName));
}

#if defined(__linux__)
TEST_F(InputFile, MissingPermissionIsTold) {
    fs::permissions(folder / "model.mod", fs::perms::none);
    // The superuser may read everything, so one thread puts that right aside for its file accesses.
    std::thread([this] {
        ::setfsuid(65534);
        EXPECT_THAT(check("model.mod"),
                    failsWith(status::fileNotReachable, "Could not open .MOD file. Access denied."));
    }).join();
}
#endif

TEST_F(InputFile, PathOf256BytesIsTooLong) {
    EXPECT_THAT(checkInputFile(std::string(256, 'a'), ".DAT file"),
                failsWith(status::fileNameRejected, "Filename of .DAT file is too long."));
    EXPECT_THAT(checkInputFile(std::string(255, 'a'), ".DAT file"),
                failsWith(status::fileNotReachable, "Could not find .DAT file. Bad filename."));
}

}  // namespace
}  // namespace tarq
