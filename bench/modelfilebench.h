// Benchmarks of reading and writing model files, the same for this component and for each peer.
//
// A `Model` is an empty model of one program, with `bool readMps(const std::string& path)`, by which a model to be
// written is filled, and `std::int64_t nonzeros() const`. What is timed is the processor time of the one call that
// reads or writes; the making and freeing of the model is left out for all. Counters: `fileBytes`; `peakBytes`, how far
// the resident set grew at its highest; `beyondModel`, the bytes of that a nonzero that aren't the model.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "largemodel.h"
#include "peakmemory.h"

namespace filebench {

template <class Model>
using FileCall = bool (Model::*)(const std::string& path);

inline void reportCounters(benchmark::State& state, const std::string& path, double peak, double beyondModel) {
    const auto size = static_cast<double>(std::filesystem::file_size(path));
    state.SetBytesProcessed(static_cast<std::int64_t>(size));
    state.counters["fileBytes"] = size;
    state.counters["peakBytes"] = peak;
    state.counters["beyondModel"] = beyondModel / nonzeroCount;
}

template <class Model>
void measureReading(benchmark::State& state, FileCall<Model> read, const std::string& path) {
    for (auto _ : state) {
        state.PauseTiming();
        const PeakMemory memory;
        auto model = std::make_unique<Model>();
        state.ResumeTiming();
        const bool isRead = ((*model).*read)(path);
        state.PauseTiming();
        if (!isRead || model->nonzeros() != nonzeroCount) {
            state.SkipWithError("the file was not read in full");
            return;
        }
        const double peak = memory.growth();
        reportCounters(state, path, peak, peak - memory.left());
        model.reset();
        state.ResumeTiming();
    }
}

template <class Model>
void measureWriting(benchmark::State& state, FileCall<Model> write) {
    const std::string path = scratchFile("written");
    for (auto _ : state) {
        state.PauseTiming();
        auto model = std::make_unique<Model>();
        if (!model->readMps(largeMpsFile()) || model->nonzeros() != nonzeroCount) {
            state.SkipWithError("the model was not read in full");
            return;
        }
        const PeakMemory memory;
        state.ResumeTiming();
        const bool isWritten = ((*model).*write)(path);
        state.PauseTiming();
        if (!isWritten) {
            state.SkipWithError("the file was not written");
            return;
        }
        const double peak = memory.growth();
        reportCounters(state, path, peak, peak);
        std::filesystem::remove(path);
        model.reset();
        state.ResumeTiming();
    }
}

inline constexpr int usualRepetitions = 5;

inline void inOneRun(const std::string& name, int repetitions, std::function<void(benchmark::State&)> run) {
    auto* const bench = benchmark::RegisterBenchmark(name.c_str(), std::move(run));
    bench->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->Iterations(1)->Repetitions(repetitions);
    bench->ComputeStatistics("min",
                             [](const std::vector<double>& values) { return *std::ranges::min_element(values); });
    bench->DisplayAggregatesOnly();
}

/// Adds the benchmark of reading what `file` makes. The result is only there to initialise something.
template <class Model>
bool addReading(const std::string& name, FileCall<Model> read, const std::function<std::string()>& file,
                int repetitions = usualRepetitions) {
    inOneRun("modelRead/" + name, repetitions,
             [read, file](benchmark::State& state) { measureReading<Model>(state, read, file()); });
    return true;
}

template <class Model>
bool addWriting(const std::string& name, FileCall<Model> write) {
    inOneRun("modelWrite/" + name, usualRepetitions,
             [write](benchmark::State& state) { measureWriting<Model>(state, write); });
    return true;
}

}  // namespace filebench
