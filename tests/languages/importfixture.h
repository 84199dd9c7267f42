// A model for imports to fill, a folder of its own for the temporary files, and stubs to read.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "languages/languagetarget.h"
#include "tests/support/outcomematchers.h"

namespace tarq {

class FilledModel final : public LanguageTarget {
public:
    FilledModel() { (void)store_.addColumnRecord({.name = "old"}); }
    ModelStore& store() override { return store_; }
    void clearModel() override {
        store_.clear();
        output_.clear();
    }
    void setModelName(std::string /*name*/) override {}
    void setParameter(std::string_view name, std::string_view value) override {
        parameters_[std::string(name)] = value;
    }
    [[nodiscard]] std::size_t outputLimit() const override { return 1024; }
    void setOutput(std::string bytes) override { output_ = std::move(bytes); }

    [[nodiscard]] bool isOld() const { return store_.columnCount() == 1 && store_.findColumn("old") == 0; }

    ModelStore store_;
    std::map<std::string, std::string> parameters_;
    std::string output_;
};

class ImportTest : public testing::Test {
protected:
    // Tests run beside each other.
    ImportTest() : folder_(std::filesystem::path(testing::TempDir()) / ("tarq-import-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(folder_ / "temporary");
        setenv("TMPDIR", (folder_ / "temporary").c_str(), 1);
    }
    ~ImportTest() override {
        unsetenv("TMPDIR");
        std::filesystem::remove_all(folder_);
    }

    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }
    std::string file(const std::string& name, std::string_view text) const {
        std::ofstream(path(name), std::ios::binary) << text;
        return path(name);
    }
    [[nodiscard]] std::string content(const std::string& name) const {
        std::ifstream input(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    /// The extensions of the temporary files that were left.
    [[nodiscard]] std::vector<std::string> left() const {
        std::vector<std::string> extensions;
        for (const auto& entry : std::filesystem::directory_iterator(folder_ / "temporary")) {
            extensions.push_back(entry.path().extension());
        }
        std::ranges::sort(extensions);
        return extensions;
    }

    std::filesystem::path folder_;
    FilledModel model;
};

/// Maximize 5.5 x + 4 b + 3 i + 7.5, with names: a continuous, a binary and an integer column, a row of each kind.
inline constexpr std::string_view sampleStub =
    "g3 1 1 0\n 3 4 1 1 1\n 0 0\n 0 0\n 0 0 0\n 0 0 0 1\n 1 1 0 0 0\n 8 3\n 4 8\n 0 0 0 0 0\n"
    "C0\nn0\nC1\nn0\nC2\nn0\nC3\nn0\nO0 1\nn7.5\nr\n1 10\n0 1 5\n3\n4 2\nb\n2 0\n0 0 1\n0 0 7\nk2\n3\n6\n"
    "J0 3\n0 2\n1 3\n2 1\nJ1 2\n0 1\n2 -1\nJ2 1\n1 0\nJ3 2\n0 1.25\n1 1e30\nG0 3\n0 5.5\n1 4\n2 3\n";

}  // namespace tarq
