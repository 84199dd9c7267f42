// Writing a model into a file of the test and reading its text back.
#pragma once

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include "modelfiles/modelwriter.h"
#include "tests/modelfiles/mpsmodel.h"

namespace tarq {

/// A folder that is gone behind the test, and a model with parameters to be written there.
class WrittenFile {
public:
    WrittenFile() : folder_(std::filesystem::temp_directory_path() / ("tarq_write_" + std::to_string(getpid()))) {
        std::filesystem::create_directories(folder_);
    }
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;
    ~WrittenFile() { std::filesystem::remove_all(folder_); }

    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }
    [[nodiscard]] WrittenModel model() { return {target.modelStore, parameters, target.name}; }

    void column(std::string name, double lower, double upper, double cost = 0,
                TARQColType type = TARQColType::Continuous) {
        ColumnRecord record;
        record.name = std::move(name);
        record.lowerBound = lower;
        record.upperBound = upper;
        record.cost = cost;
        record.type = type;
        EXPECT_TRUE(target.modelStore.addColumnRecord(std::move(record)).isOk());
    }
    void row(std::string name, double lower, double upper) {
        RowRecord record;
        record.name = std::move(name);
        record.lowerBound = lower;
        record.upperBound = upper;
        EXPECT_TRUE(target.modelStore.addRowRecord(std::move(record)).isOk());
    }
    void nonzero(std::int32_t row, std::int32_t column, double value) {
        target.modelStore.setNonzero(column, row, value);
    }

    /// The text that a write leaves, with "TIME" for the time stamp.
    template <class Write>
    std::string textOf(const Write& write) {
        const std::string name = path("written");
        EXPECT_THAT(write(name), succeeds());
        std::stringstream text;
        text << std::ifstream(name, std::ios::binary).rdbuf();
        return withoutTimeStamp(text.str());
    }
    std::string textIn(TARQFileFormatType format) {
        return textOf([&](const std::string& name) { return writeModelFile(name, format, model()); });
    }

    MpsModel target;
    ParameterTable parameters;

    static constexpr double infinity = 1e25;

private:
    /// The text with "TIME" where its first time stamp stood.
    static std::string withoutTimeStamp(std::string text) {
        static constexpr std::string_view form = "00:00:00 on 00.00.0000";
        const auto isStamp = [](char have, char wanted) {
            return wanted == '0' ? have >= '0' && have <= '9' : have == wanted;
        };
        const auto stamp = std::search(text.begin(), text.end(), form.begin(), form.end(), isStamp);
        if (stamp != text.end()) {
            text.replace(stamp, stamp + static_cast<std::ptrdiff_t>(form.size()), "TIME");
        }
        return text;
    }

    std::filesystem::path folder_;
};

}  // namespace tarq
