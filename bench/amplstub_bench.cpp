// The import of an AMPL stub with a million coefficients, beside the AMPL Solver Library's own reading in its process.
//
// What is timed is the processor time of one run in a fresh process, that of its own child processes included: memory
// that an earlier run has left would be half the work. The import also makes the model; the peer only reads, and asks
// for the names where there are some.
#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <tarq/tarq.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

#include "amplreading.h"
#include "largemodel.h"

namespace {

constexpr int rowCount = 100'000;
constexpr int columnCount = 200'000;
constexpr int perRow = 10;

/// Row i has the columns (7919 i + 18181 k) mod columnCount, which are ten different ones.
int columnAt(int row, int k) {
    return static_cast<int>((std::int64_t{7919} * row + std::int64_t{18181} * k) % columnCount);
}

void writeStub(std::ostream& out, bool names) {
    out << fmt::format("g3 1 1 0\n {} {} 1 0 0\n 0 0\n 0 0\n 0 0 0\n 0 0 0 1\n 0 0 0 0 0\n {} {}\n {}\n 0 0 0 0 0\n",
                       columnCount, rowCount, rowCount * perRow, columnCount, names ? "7 7" : "0 0");
    for (int i = 0; i < rowCount; ++i) out << fmt::format("C{}\nn0\n", i);
    out << "O0 0\nn0\nr\n";
    for (int i = 0; i < rowCount; ++i) out << fmt::format("1 {}\n", i % 1000 + 10);
    out << "b\n";
    for (int j = 0; j < columnCount; ++j) out << fmt::format("0 0 {}\n", j % 100 + 1);
    std::vector<int> counts(columnCount);
    for (int i = 0; i < rowCount; ++i) {
        for (int k = 0; k < perRow; ++k) ++counts[static_cast<std::size_t>(columnAt(i, k))];
    }
    out << fmt::format("k{}\n", columnCount - 1);
    for (int j = 0, sum = 0; j < columnCount - 1; ++j) out << (sum += counts[static_cast<std::size_t>(j)]) << '\n';
    for (int i = 0; i < rowCount; ++i) {
        out << fmt::format("J{} {}\n", i, perRow);
        for (int k = 0; k < perRow; ++k) out << fmt::format("{} {}\n", columnAt(i, k), 0.25 * (k + i % 37) + 1);
    }
    out << fmt::format("G0 {}\n", columnCount);
    for (int j = 0; j < columnCount; ++j) out << fmt::format("{} {}\n", j, j % 53 + 1);
}

void writeNames(const std::string& path, char prefix, int count) {
    std::ofstream out(path);
    for (int number = 1; number <= count; ++number) out << prefix << number << '\n';
}

/// The stub's name without its extension.
std::string stubWith(bool names) {
    std::string file = filebench::fileMadeOnce(names ? "named.nl" : "nameless.nl", [names](const std::string& path) {
        std::ofstream out(path);
        writeStub(out, names);
        const std::string base = path.substr(0, path.size() - 3);
        if (names) writeNames(base + ".row", 'r', rowCount);
        if (names) writeNames(base + ".col", 'x', columnCount);
        return out.good();
    });
    return file.substr(0, file.size() - 3);
}

/// Of all children that have been waited for, and theirs.
double childrensSeconds() {
    double seconds = 0.0;
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    for (const timeval& time : {usage.ru_utime, usage.ru_stime}) {
        seconds += static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    }
    return seconds;
}

/// `read` is true when all was read.
template <class Read>
void measure(benchmark::State& state, bool names, Read read) {
    const std::string stub = stubWith(names);
    for (auto _ : state) {
        const double before = childrensSeconds();
        const pid_t process = fork();
        if (process == 0) _exit(read(stub) ? 0 : 1);
        int status = -1;
        waitpid(process, &status, 0);
        state.SetIterationTime(childrensSeconds() - before);
        if (status != 0) state.SkipWithError("the stub was not read in full");
    }
}

bool import(const std::string& stub) {
    const auto model = tarq::createObject<tarq::ITARQModel>("TARQModel");
    std::int32_t count = 0;
    return model->ReadAMPLStub(stub).isOk() && model->get_NumberOfNZ(&count).isOk() && count == rowCount * perRow;
}

bool readByLibrary(const std::string& stub) { return filebench::readAmplStub(stub) == rowCount * perRow; }

const bool added = [] {
    for (const bool names : {false, true}) {
        const std::string suffix = names ? "named" : "nameless";
        const auto add = [&](const std::string& who, auto read) {
            benchmark::RegisterBenchmark(("amplStub/" + suffix + "/" + who).c_str(),
                                         [=](benchmark::State& state) { measure(state, names, read); })
                ->Unit(benchmark::kMillisecond)
                ->UseManualTime()
                ->Iterations(1)
                ->Repetitions(5)
                ->ComputeStatistics("min",
                                    [](const std::vector<double>& times) { return *std::ranges::min_element(times); })
                ->DisplayAggregatesOnly();
        };
        add("tarq", import);
        add("asl", readByLibrary);
    }
    return true;
}();

}  // namespace
