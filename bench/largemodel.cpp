#include "largemodel.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>
#include <memory>
#include <random>
#include <stdexcept>
#include <system_error>

namespace filebench {
namespace {

constexpr int rowCount = 200'000;
constexpr int columnCount = 1'000'000;
constexpr int firstIntegerColumn = 800'000;

class TemporaryFolder {
public:
    TemporaryFolder() : path_(std::filesystem::temp_directory_path() / fmt::format("tarq_bench_{}", getpid())) {
        std::filesystem::create_directory(path_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

class MpsGenerator {
public:
    explicit MpsGenerator(std::FILE* file) : file_(file) {}

    void write() {
        writeRows();
        writeColumns();
        writeRightHandSides();
        writeBounds();
        fmt::print(file_, "ENDATA\n");
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    /// Half of the numbers are short ones as people write them, half have the digits of computed data.
    std::string number() {
        if (below(2) == 0) return fmt::format("{}", below(400) / 4.0 - 50.125);
        return fmt::format("{:.6f}", std::uniform_real_distribution<double>(-1000.0, 1000.0)(random_));
    }

    void writeRows() {
        fmt::print(file_, "NAME          LARGE\nROWS\n N  COST\n");
        for (int row = 0; row < rowCount; ++row) fmt::print(file_, " {}  R{:07}\n", "LGE"[below(3)], row);
    }

    void writeColumns() {
        fmt::print(file_, "COLUMNS\n");
        int left = nonzeroCount;
        for (int column = 0; column < columnCount; ++column) {
            if (column == firstIntegerColumn) {
                fmt::print(file_, "    MARKER    'MARKER'                 'INTORG'\n");
            }
            const int rest = columnCount - column;
            const int length = rest == 1 ? left : (left + below(rest)) / rest;
            left -= length;
            writeColumn(column, length);
        }
        fmt::print(file_, "    MARKER    'MARKER'                 'INTEND'\n");
    }

    void writeColumn(int column, int length) {
        // Scattered, and yet no row stays without a nonzero: not every format can read such a one.
        constexpr std::int64_t stride = 123'457;
        const std::int64_t start = column * stride % rowCount;
        const int step = 1 + below(rowCount / 16);
        std::string line = fmt::format("    C{:07}  COST      {:>12}", column, number());
        for (int entry = 0; entry < length; ++entry) {
            const auto row = static_cast<int>((start + std::int64_t{entry} * step) % rowCount);
            if (line.empty()) {
                line = fmt::format("    C{:07}  R{:07}  {:>12}", column, row, number());
                continue;
            }
            fmt::print(file_, "{}   R{:07}  {:>12}\n", line, row, number());
            line.clear();
        }
        if (!line.empty()) fmt::print(file_, "{}\n", line);
    }

    void writeRightHandSides() {
        fmt::print(file_, "RHS\n");
        for (int row = 0; row < rowCount; ++row) fmt::print(file_, "    RHS       R{:07}  {:>12}\n", row, number());
    }

    void writeBounds() {
        fmt::print(file_, "BOUNDS\n");
        for (int column = 0; column < columnCount; column += 2) {
            fmt::print(file_, " UP BND       C{:07}  {:>12}\n", column, 1 + below(1000));
        }
    }

    std::FILE* file_;
    std::mt19937 random_{20'240'229};
};

bool generateMps(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wb"), &std::fclose);
    if (!file) return false;
    MpsGenerator(file.get()).write();
    return std::fflush(file.get()) == 0;
}

}  // namespace

std::string scratchFile(const std::string& name) {
    static const TemporaryFolder folder;
    return folder.file(name);
}

std::string fileMadeOnce(const std::string& name, const std::function<bool(const std::string& path)>& make) {
    std::string path = scratchFile(name);
    if (!std::filesystem::exists(path) && !make(path)) throw std::runtime_error("cannot make " + path);
    return path;
}

const std::string& largeMpsFile() {
    static const std::string path = fileMadeOnce("large.mps", generateMps);
    return path;
}

}  // namespace filebench
