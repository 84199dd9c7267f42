// Reading one large MPS file: this component beside CoinUtils and HiGHS, in processor time.
//
// The file is generated with a fixed seed: 200,000 rows, 350,000 columns, 2.4 million nonzeros scattered over the rows,
// about 100 MB. `peakBytes` is the growth of the resident set at its highest, `peakPerNonzero` the same without the
// file.
#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <malloc.h>
#include <unistd.h>

#include <CoinMpsIO.hpp>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "Highs.h"
#include "modelfiles/modelfile.h"

namespace {

constexpr int rowCount = 200'000;
constexpr int columnCount = 350'000;
constexpr int nonzeroCount = 2'400'000;
constexpr int firstIntegerColumn = 300'000;

/// The generated file, removed at the end of the process.
class LargeFile {
public:
    LargeFile() : path_(std::filesystem::temp_directory_path() / fmt::format("tarq_bench_{}.mps", getpid())) {
        std::FILE* file = std::fopen(path_.c_str(), "wb");
        if (file == nullptr) return;
        writeRows(file);
        writeColumns(file);
        writeRowValues(file);
        writeBounds(file);
        std::fputs("ENDATA\n", file);
        std::fclose(file);
    }
    ~LargeFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    LargeFile(const LargeFile&) = delete;
    LargeFile& operator=(const LargeFile&) = delete;

    std::string path() const { return path_.string(); }
    double size() const { return static_cast<double>(std::filesystem::file_size(path_)); }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    /// Half of the numbers are short ones as people write them, half have the digits of computed data.
    std::string number() {
        if (below(2) == 0) return fmt::format("{}", below(400) / 4.0 - 50.125);
        return fmt::format("{:.6f}", std::uniform_real_distribution<double>(-1000.0, 1000.0)(random_));
    }

    void writeRows(std::FILE* file) {
        fmt::print(file, "NAME          LARGE\nROWS\n N  COST\n");
        for (int row = 0; row < rowCount; ++row) fmt::print(file, " {}  R{:07}\n", "LGE"[below(3)], row);
    }

    void writeColumns(std::FILE* file) {
        fmt::print(file, "COLUMNS\n");
        int left = nonzeroCount;
        for (int column = 0; column < columnCount; ++column) {
            if (column == firstIntegerColumn) {
                fmt::print(file, "    MARKER    'MARKER'                 'INTORG'\n");
            }
            const int length =
                column + 1 == columnCount ? left : (left + below(columnCount - column)) / (columnCount - column);
            left -= length;
            writeColumn(file, column, length);
        }
        fmt::print(file, "    MARKER    'MARKER'                 'INTEND'\n");
    }

    void writeColumn(std::FILE* file, int column, int length) {
        const int start = below(rowCount);
        const int step = 1 + below(rowCount / 16);
        std::string line = fmt::format("    C{:07}  COST      {:>12}", column, number());
        for (int entry = 0; entry < length; ++entry) {
            const auto row = static_cast<int>((start + std::int64_t{entry} * step) % rowCount);
            if (line.empty()) {
                line = fmt::format("    C{:07}  R{:07}  {:>12}", column, row, number());
                continue;
            }
            fmt::print(file, "{}   R{:07}  {:>12}\n", line, row, number());
            line.clear();
        }
        if (!line.empty()) fmt::print(file, "{}\n", line);
    }

    void writeRowValues(std::FILE* file) {
        fmt::print(file, "RHS\n");
        for (int row = 0; row < rowCount; ++row) fmt::print(file, "    RHS       R{:07}  {:>12}\n", row, number());
        fmt::print(file, "RANGES\n");
        for (int row = 0; row < rowCount; row += 20) fmt::print(file, "    RNG       R{:07}  {:>12}\n", row, 7.5);
    }

    void writeBounds(std::FILE* file) {
        fmt::print(file, "BOUNDS\n");
        for (int column = 0; column < columnCount; column += 2) {
            fmt::print(file, " UP BND       C{:07}  {:>12}\n", column, 1 + below(1000));
        }
    }

    std::filesystem::path path_;
    std::mt19937 random_{20'240'229};
};

const LargeFile& largeFile() {
    static const LargeFile file;
    return file;
}

/// Kilobytes of one of the memory lines of the process.
double processKilobytes(const std::string& key) {
    std::ifstream file("/proc/self/status");
    for (std::string word; file >> word;) {
        double kilobytes = 0;
        if (word == key && file >> kilobytes) return kilobytes;
    }
    return 0;
}

/// The highest resident set since this object was made, above what it was then.
class PeakMemory {
public:
    PeakMemory() {
        malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << "5";
        before_ = processKilobytes("VmRSS:");
    }
    double bytes() const { return 1024 * (processKilobytes("VmHWM:") - before_); }

private:
    double before_ = 0;
};

struct Tarq final : tarq::ModelFileTarget {
    tarq::ModelStore& store() override { return modelStore; }
    void clearModel() override { modelStore.clear(); }
    void setModelName(std::string) override {}
    void setParameter(std::string_view, std::string_view) override {}

    bool read(const std::string& path) {
        return tarq::readModelFile(path, tarq::TARQFileFormatType::MPS, *this).isOk();
    }
    [[nodiscard]] std::int64_t nonzeros() const { return static_cast<std::int64_t>(modelStore.nonzeros().size()); }

    tarq::ModelStore modelStore;
};

struct CoinUtils {
    CoinUtils() { reader.messageHandler()->setLogLevel(0); }
    bool read(const std::string& path) { return reader.readMps(path.c_str(), "mps") == 0; }
    [[nodiscard]] std::int64_t nonzeros() const { return reader.getNumElements(); }

    CoinMpsIO reader;
};

template <bool isFree>
struct HighsReader {
    HighsReader() {
        reader.setOptionValue("output_flag", false);
        reader.setOptionValue("mps_parser_type_free", isFree);
    }
    bool read(const std::string& path) { return reader.readModel(path) != HighsStatus::kError; }
    [[nodiscard]] std::int64_t nonzeros() const { return reader.getLp().a_matrix_.numNz(); }

    Highs reader;
};

/// Times the reading alone: making and freeing the reader and its model is left out for all.
template <class Reader>
void mpsRead(benchmark::State& state) {
    const std::string path = largeFile().path();
    double peak = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const PeakMemory memory;
        auto reader = std::make_unique<Reader>();
        state.ResumeTiming();
        const bool isRead = reader->read(path);
        state.PauseTiming();
        peak = memory.bytes();
        if (!isRead || reader->nonzeros() != nonzeroCount) {
            state.SkipWithError("the file was not read in full");
            break;
        }
        reader.reset();
        state.ResumeTiming();
    }
    state.counters["fileBytes"] = largeFile().size();
    state.counters["peakBytes"] = peak;
    state.counters["peakPerNonzero"] = (peak - largeFile().size()) / nonzeroCount;
}

void inOneRun(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->Iterations(1)->Repetitions(5);
}

BENCHMARK(mpsRead<Tarq>)->Apply(inOneRun);
BENCHMARK(mpsRead<CoinUtils>)->Apply(inOneRun);
BENCHMARK(mpsRead<HighsReader<false>>)->Apply(inOneRun);
BENCHMARK(mpsRead<HighsReader<true>>)->Apply(inOneRun);

}  // namespace
