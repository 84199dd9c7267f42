#include "platform/temporaryfile.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace tarq {
namespace {

namespace fs = std::filesystem;

TEST(TemporaryFileTest, FileAndCompanionsGoAtTheEndUnlessKept) {
    const fs::path folder = fs::path(testing::TempDir()) / "tarq-temporary";
    fs::remove_all(folder);
    setenv("TMPDIR", folder.c_str(), 1);
    EXPECT_FALSE(TemporaryFile().isMade()) << "the folder isn't there, and no other is taken";
    fs::create_directory(folder);
    std::string kept;
    {
        const TemporaryFile gone;
        TemporaryFile removed;
        TemporaryFile half;
        EXPECT_EQ(fs::path(gone.name()).filename().string().substr(0, 3), "TFR");
        std::ofstream(removed.companion(".nl")) << 1;
        removed.removeFile();
        EXPECT_FALSE(fs::exists(removed.name()));
        kept = half.companion(".acf");
        std::ofstream(kept) << 1;
        half.removeFile();
        half.keep();
    }
    unsetenv("TMPDIR");
    EXPECT_TRUE(fs::exists(kept));
    EXPECT_EQ(fs::remove_all(folder), 2U) << "the folder and the kept companion";
}

}  // namespace
}  // namespace tarq
