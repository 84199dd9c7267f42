// The store of a model beside the same store on std::map, under the same calls in the same order.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "model/modelstore.h"

namespace {

using tarq::ColumnRecord;
using tarq::ModelStore;
using tarq::NonzeroLoader;

struct Nonzero {
    std::int32_t column;
    std::int32_t row;
    double value;
};

/// What a table of nonzeros has to hold.
struct Shape {
    std::int32_t columns;
    std::int32_t rows;
    std::int32_t nonzerosInRow;

    /// Row by row, columns ascending, at random columns.
    [[nodiscard]] std::vector<Nonzero> inRowOrder() const {
        std::mt19937 random(1);
        std::vector<Nonzero> nonzeros;
        const std::int32_t step = columns / nonzerosInRow;
        for (std::int32_t row = 1; row <= rows; ++row) {
            for (std::int32_t i = 0; i < nonzerosInRow; ++i) {
                const auto offset = static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(step));
                nonzeros.push_back({i * step + offset + 1, row, 1.5});
            }
        }
        return nonzeros;
    }
    [[nodiscard]] std::vector<Nonzero> inColumnOrder() const {
        std::vector<Nonzero> nonzeros = inRowOrder();
        std::ranges::stable_sort(nonzeros, {}, &Nonzero::column);
        return nonzeros;
    }
    [[nodiscard]] std::vector<Nonzero> inRandomOrder() const {
        std::vector<Nonzero> nonzeros = inRowOrder();
        std::ranges::shuffle(nonzeros, std::mt19937(2));
        return nonzeros;
    }
};

constexpr Shape square{10'000, 10'000, 100};
constexpr Shape verySparse{500'000, 500'000, 2};
constexpr Shape oneDenseRow{1'000'000, 1, 1'000'000};

class TarqStore {
public:
    explicit TarqStore(const Shape& shape) {
        for (std::int32_t i = 0; i < shape.columns; ++i) static_cast<void>(store_.addColumnRecord({}));
        for (std::int32_t i = 0; i < shape.rows; ++i) static_cast<void>(store_.addRowRecord({}));
    }
    void set(const Nonzero& nonzero) { store_.setNonzero(nonzero.column, nonzero.row, nonzero.value); }
    [[nodiscard]] double find(std::int32_t column, std::int32_t row) const { return store_.nonzeroAt(column, row); }
    [[nodiscard]] double sum() const {
        double sum = 0.0;
        store_.nonzeros().forEach(
            [&](std::int32_t column, std::int32_t row, double value) { sum += value * column + row; });
        return sum;
    }
    void load(const std::vector<Nonzero>& nonzeros) {
        NonzeroLoader loader;
        for (const Nonzero& nonzero : nonzeros) loader.append(nonzero.column, nonzero.row, nonzero.value);
        store_.loadNonzeros(loader);
    }
    void removeColumns(std::int32_t first, std::int32_t last) { store_.remove<ColumnRecord>(first, last); }

private:
    ModelStore store_;
};

class MapStore {
public:
    explicit MapStore(const Shape& shape) : columns_(static_cast<std::size_t>(shape.columns)) {}
    void set(const Nonzero& nonzero) {
        if (nonzero.value == 0.0) {
            nonzeros_.erase({nonzero.row, nonzero.column});
        } else {
            nonzeros_[{nonzero.row, nonzero.column}] = nonzero.value;
        }
    }
    [[nodiscard]] double find(std::int32_t column, std::int32_t row) const {
        const auto found = nonzeros_.find({row, column});
        return found == nonzeros_.end() ? 0.0 : found->second;
    }
    [[nodiscard]] double sum() const {
        double sum = 0.0;
        for (const auto& [key, value] : nonzeros_) sum += value * key.second + key.first;
        return sum;
    }
    void load(const std::vector<Nonzero>& nonzeros) {
        for (const Nonzero& nonzero : nonzeros) set(nonzero);
    }
    void removeColumns(std::int32_t first, std::int32_t last) {
        columns_.erase(columns_.begin() + (first - 1), columns_.begin() + last);
        for (auto entry = nonzeros_.begin(); entry != nonzeros_.end();) {
            const auto column = entry->first.second;
            if (column >= first && column <= last) {
                entry = nonzeros_.erase(entry);
                continue;
            }
            // Renumbering in place keeps the order, so the key may be written through.
            if (column > last) const_cast<std::int32_t&>(entry->first.second) -= last - first + 1;
            ++entry;
        }
    }

private:
    std::vector<ColumnRecord> columns_;
    std::map<std::pair<std::int32_t, std::int32_t>, double> nonzeros_;
};

std::size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void countNonzeros(benchmark::State& state, std::size_t count) {
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
}

/// Times `build(store)` on an empty store of the shape and counts the bytes that the nonzeros take afterwards.
template <class Store, class Build>
void measureBuilding(benchmark::State& state, const Shape& shape, std::size_t count, Build build) {
    std::size_t bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto store = std::make_unique<Store>(shape);
        const std::size_t bytesBefore = bytesInUse();
        state.ResumeTiming();
        build(*store);
        state.PauseTiming();
        bytes = bytesInUse() - bytesBefore;
        store.reset();
        state.ResumeTiming();
    }
    countNonzeros(state, count);
    state.counters["bytes/nonzero"] = static_cast<double>(bytes) / static_cast<double>(count);
}

template <class Store>
void setEach(benchmark::State& state, const Shape& shape, const std::vector<Nonzero>& nonzeros) {
    measureBuilding<Store>(state, shape, nonzeros.size(), [&](Store& store) {
        for (const Nonzero& nonzero : nonzeros) store.set(nonzero);
    });
}

template <class Store>
void setInRandomOrder(benchmark::State& state, Shape shape) {
    setEach<Store>(state, shape, shape.inRandomOrder());
}

template <class Store>
void setInRowOrder(benchmark::State& state, Shape shape) {
    setEach<Store>(state, shape, shape.inRowOrder());
}

template <class Store>
void setInColumnOrder(benchmark::State& state, Shape shape) {
    setEach<Store>(state, shape, shape.inColumnOrder());
}

/// As a reader of a file that stands column by column.
template <class Store>
void loadAtOnce(benchmark::State& state, Shape shape) {
    const std::vector<Nonzero> nonzeros = shape.inColumnOrder();
    measureBuilding<Store>(state, shape, nonzeros.size(), [&](Store& store) { store.load(nonzeros); });
}

/// A store can't be moved, so this makes one in its place.
template <class Store>
std::unique_ptr<Store> builtAtRandom(const Shape& shape) {
    auto store = std::make_unique<Store>(shape);
    for (const Nonzero& nonzero : shape.inRandomOrder()) store->set(nonzero);
    return store;
}

template <class Store>
void lookUpAtRandom(benchmark::State& state, Shape shape) {
    const auto store = builtAtRandom<Store>(shape);
    std::vector<Nonzero> places = shape.inRowOrder();
    std::ranges::shuffle(places, std::mt19937(3));
    for (auto _ : state) {
        double sum = 0.0;
        for (const Nonzero& place : places) sum += store->find(place.column, place.row);
        benchmark::DoNotOptimize(sum);
    }
    countNonzeros(state, places.size());
}

template <class Store>
void walk(benchmark::State& state, Shape shape) {
    const auto store = builtAtRandom<Store>(shape);
    for (auto _ : state) benchmark::DoNotOptimize(store->sum());
    countNonzeros(state, shape.inRowOrder().size());
}

template <class Store>
void removeOneColumn(benchmark::State& state, Shape shape) {
    const auto store = builtAtRandom<Store>(shape);
    for (auto _ : state) store->removeColumns(shape.columns / 2, shape.columns / 2);
    countNonzeros(state, shape.inRowOrder().size());
}

/// Named columns with an index on std::map.
class MapNames {
public:
    void add(const std::string& name) {
        if (!positions_.emplace(name, static_cast<std::int32_t>(columns_.size())).second) return;
        columns_.push_back({.name = name});
    }
    [[nodiscard]] std::int32_t find(const std::string& name) const { return positions_.find(name)->second; }

private:
    std::vector<ColumnRecord> columns_;
    std::map<std::string, std::int32_t> positions_;
};

class TarqNames {
public:
    void add(const std::string& name) { static_cast<void>(store_.addColumnRecord({.name = name})); }
    [[nodiscard]] std::int32_t find(const std::string& name) const { return store_.findColumn(name); }

private:
    ModelStore store_;
};

/// 100,000 names like those of a family over two index sets.
std::vector<std::string> familyNames() {
    std::vector<std::string> names;
    for (int i = 1; i <= 500; ++i) {
        for (int j = 1; j <= 200; ++j) names.push_back("x." + std::to_string(i) + "." + std::to_string(j));
    }
    return names;
}

template <class Names>
void addNamedColumnsAndLookThemUp(benchmark::State& state) {
    const std::vector<std::string> names = familyNames();
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::size_t bytesBefore = bytesInUse();
        Names columns;
        for (const std::string& name : names) columns.add(name);
        std::int64_t sum = 0;
        for (const std::string& name : names) sum += columns.find(name);
        benchmark::DoNotOptimize(sum);
        bytes = bytesInUse() - bytesBefore;
    }
    countNonzeros(state, names.size());
    state.counters["bytes/column"] = static_cast<double>(bytes) / static_cast<double>(names.size());
}

struct Measurement {
    const char* name;
    void (*onTarq)(benchmark::State& state, Shape shape);
    void (*onMap)(benchmark::State& state, Shape shape);
};

constexpr Measurement measurements[] = {
    {"setInRandomOrder", setInRandomOrder<TarqStore>, setInRandomOrder<MapStore>},
    {"setInRowOrder", setInRowOrder<TarqStore>, setInRowOrder<MapStore>},
    {"setInColumnOrder", setInColumnOrder<TarqStore>, setInColumnOrder<MapStore>},
    {"loadAtOnce", loadAtOnce<TarqStore>, loadAtOnce<MapStore>},
    {"lookUpAtRandom", lookUpAtRandom<TarqStore>, lookUpAtRandom<MapStore>},
    {"walk", walk<TarqStore>, walk<MapStore>},
    {"removeOneColumn", removeOneColumn<TarqStore>, removeOneColumn<MapStore>},
};

constexpr std::pair<const char*, Shape> shapes[] = {
    {"square", square}, {"verySparse", verySparse}, {"oneDenseRow", oneDenseRow}};

/// Fixed, so that each measurement fills its store once only; take medians with --benchmark_repetitions.
constexpr int iterations = 3;

/// Every measurement on every shape, on our store and, next to it, on the map.
[[maybe_unused]] const bool registered = [] {
    for (const Measurement& measurement : measurements) {
        for (const auto& [shapeName, shape] : shapes) {
            const std::string name = std::string(measurement.name) + '/' + shapeName;
            benchmark::RegisterBenchmark((name + "/tarq").c_str(), measurement.onTarq, shape)
                ->Unit(benchmark::kMillisecond)
                ->Iterations(iterations);
            benchmark::RegisterBenchmark((name + "/map").c_str(), measurement.onMap, shape)
                ->Unit(benchmark::kMillisecond)
                ->Iterations(iterations);
        }
    }
    return true;
}();

BENCHMARK(addNamedColumnsAndLookThemUp<TarqNames>)->Unit(benchmark::kMillisecond);
BENCHMARK(addNamedColumnsAndLookThemUp<MapNames>)->Unit(benchmark::kMillisecond);

}  // namespace
