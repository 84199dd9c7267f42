// From a file name to a model: the checks before the reader, and real files.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <tuple>

#include "tests/modelfiles/mpsmodel.h"

namespace tarq {
namespace {

const std::string minimal = "NAME\nROWS\nCOLUMNS\nENDATA\n";

/// A folder of its own for each test, and a model that holds one column from before.
class ModelFile : public testing::Test {
protected:
    ModelFile()
        : folder_(std::filesystem::temp_directory_path() / ("tarq_modelfile_test_" + std::to_string(getpid()))) {
        std::filesystem::create_directories(folder_);
        EXPECT_TRUE(model_.modelStore.addColumnRecord({}).isOk());
    }
    ~ModelFile() override { std::filesystem::remove_all(folder_); }

    std::string file(const std::string& name, const std::string& content) const {
        std::ofstream(folder_ / name, std::ios::binary) << content;
        return (folder_ / name).string();
    }
    void expectUntouched() const {
        EXPECT_EQ(model_.clearings, 0);
        EXPECT_EQ(model_.modelStore.columnCount(), 1);
    }

    std::filesystem::path folder_;
    MpsModel model_;
};

TEST_F(ModelFile, FileNameIsMeasuredInCharactersAndBeforeAnythingElse) {
    std::string accents;
    for (int count = 0; count < 255; ++count) accents += "\xC3\xA9";
    for (const std::string& fits : {accents, std::string(255, 'a')}) {
        EXPECT_THAT(readModelFile(fits, TARQFileFormatType::MPS, model_),
                    failsWith(status::fileAccess, "Error while opening, reading or writing to a file."));
    }
    for (const std::string& tooLong : {accents + 'a', std::string(256, 'a')}) {
        EXPECT_THAT(readModelFile(tooLong, TARQFileFormatType(9), model_),
                    failsWith(status::textTooLong, "Passed string is to long."));
    }
    expectUntouched();
}

TEST_F(ModelFile, FileThatCannotBeReadOrFormatThatIsNoneLeavesTheModel) {
    const std::string huge = file("huge.mps", "");
    std::filesystem::resize_file(huge, std::uintmax_t{1} << 31U);
    const std::string good = file("good.mps", minimal);
    for (const std::string& name :
         {std::string(), folder_.string(), (folder_ / "missing.mps").string(), huge, good + '\0' + "x"}) {
        EXPECT_THAT(readModelFile(name, TARQFileFormatType(9), model_),
                    failsWith(status::fileAccess, "Error while opening, reading or writing to a file."))
            << name;
    }
    EXPECT_THAT(readModelFile(good, TARQFileFormatType(3), model_),
                failsWith(status::invalidArgument, "Wrong parameter for file format."));
    expectUntouched();
}

TEST_F(ModelFile, AnyLineEndReadsTheSame) {
    std::string windows;
    for (const char c : minimal) windows += c == '\n' ? std::string("\r\n") : std::string(1, c);
    for (const std::string& content : {minimal, windows, minimal.substr(0, minimal.size() - 1)}) {
        EXPECT_THAT(readModelFile(file("a.mps", content), TARQFileFormatType::MPS, model_), succeeds());
        EXPECT_EQ(model_.modelStore.columnCount(), 0) << "what the model held before is gone";
    }
    // A lone carriage return ends no line, and the last one of two belongs to the line feed.
    EXPECT_THAT(readModelFile(file("a.mps", "NAME\rROWS\n"), TARQFileFormatType::MPS, model_),
                failsWith(status::syntaxError, "Error parsing MPS file: NAME indicator expected. Line 1"));
    EXPECT_THAT(readModelFile(file("a.mps", "NAME\nROWS\r\r\n"), TARQFileFormatType::MPS, model_),
                failsWith(status::syntaxError, "Error parsing MPS file: ROWS indicator expected. Line 2"));
}

TEST_F(ModelFile, RealFilesHaveTheSizesOfTheirTable) {
    const char* const folder = std::getenv("TARQ_INSTANCES");
    if (folder == nullptr) GTEST_SKIP() << "TARQ_INSTANCES names no folder";
    std::ifstream table(std::filesystem::path(folder) / "optima.tsv");
    std::string line;
    std::getline(table, line);
    int files = 0;
    for (; std::getline(table, line); ++files) {
        std::istringstream entry(line);
        std::string name;
        std::string kind;
        std::int64_t rowCount = 0, columnCount = 0, nonzeroCount = 0, integerCount = 0;
        entry >> name >> kind >> rowCount >> columnCount >> nonzeroCount >> integerCount;
        const std::string path = (std::filesystem::path(folder) / name).string();
        ASSERT_THAT(readModelFile(path, TARQFileFormatType::MPS, model_), succeeds()) << name;
        const ModelStore& store = model_.modelStore;
        for (std::int32_t position = 0; position < store.columnCount(); ++position) {
            if (store.column(position).type != TARQColType::Continuous) --integerCount;
        }
        EXPECT_EQ(std::tuple(store.rowCount(), store.columnCount(), store.nonzeros().size(), integerCount),
                  std::tuple(rowCount, columnCount, nonzeroCount, 0))
            << name;
    }
    EXPECT_GT(files, 0);
}

}  // namespace
}  // namespace tarq
