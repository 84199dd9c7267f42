// Arrays beside the plain form of the same map, std::map<std::string, Variant>, under the same calls.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "indexed/arrays/ctarqarray.h"
#include "indexed/arrays/matrixproduct.h"
#include "tarq/frame/safearray.h"

namespace {

using tarq::Dimension;
using tarq::SafeArray;
using tarq::Variant;

constexpr std::int32_t size = 1000;
constexpr std::size_t cellCount = static_cast<std::size_t>(size) * size;

SafeArray block() {
    SafeArray array;
    const std::array<Dimension, 2> dimensions{Dimension{0, size}, Dimension{0, size}};
    (void)SafeArray::create(tarq::Kind::Double, dimensions, array);
    double number = 0.5;
    for (double& value : array.elements<double>()) value = number++;
    return array;
}

/// The component's array, through its interface.
class Array {
public:
    Array() {
        void* made = nullptr;
        (void)tarq::createInstance<tarq::CTARQArray>(nullptr, tarq::ITARQArray::id, &made);
        array_ = tarq::Ref<tarq::ITARQArray>::adopt(static_cast<tarq::ITARQArray*>(made));
        (void)array_->Init(tarq::ValueList({Variant(size), Variant(size)}));
    }
    void put(const Variant& row, const Variant& column, const Variant& value) {
        (void)array_->put_Value(row, column, missing_, missing_, missing_, value);
    }
    void get(const Variant& row, const Variant& column, Variant& value) {
        (void)array_->get_Value(row, column, missing_, missing_, missing_, &value);
    }
    void putAll(const Variant& value) { put(missing_, missing_, value); }
    void getAll(Variant& value) { get(missing_, missing_, value); }

private:
    tarq::Ref<tarq::ITARQArray> array_;
    Variant missing_ = Variant::missing();
};

/// Keys made for every access and looked up in an ordered map.
class Map {
public:
    Map() {
        for (std::int32_t row = 1; row <= size; ++row) names_.push_back(std::to_string(row));
        for (const std::string& row : names_) {
            for (const std::string& column : names_) cells_.emplace(key(row, column), Variant());
        }
    }
    void put(const Variant& row, const Variant& column, const Variant& value) {
        cells_.find(key(text(row), text(column)))->second = value;
    }
    void get(const Variant& row, const Variant& column, Variant& value) {
        value = cells_.find(key(text(row), text(column)))->second;
    }
    void putAll(const Variant& value) {
        std::size_t position = 0;
        for (const std::string& row : names_) {
            for (const std::string& column : names_) {
                Variant element;
                (void)value.array().getAt(position++, element);
                (void)element.normalizeValue();
                cells_.find(key(row, column))->second = std::move(element);
            }
        }
    }
    void getAll(Variant& value) {
        SafeArray array;
        const std::array<Dimension, 2> dimensions{Dimension{0, size}, Dimension{0, size}};
        (void)SafeArray::create(tarq::Kind::Variant, dimensions, array);
        std::size_t position = 0;
        for (const std::string& row : names_) {
            for (const std::string& column : names_) {
                array.elements<Variant>()[position++] = cells_.find(key(row, column))->second;
            }
        }
        value = Variant(std::move(array));
    }

private:
    static std::string key(const std::string& row, const std::string& column) {
        return std::string(".").append(row).append(".").append(column);
    }
    static std::string text(const Variant& value) {
        Variant copy = value;
        (void)copy.toText();
        return copy.takeText();
    }

    std::vector<std::string> names_;
    std::map<std::string, Variant> cells_;
};

template <class Store>
void putBySlice(benchmark::State& state) {
    Store store;
    const Variant values(block());
    for (auto _ : state) store.putAll(values);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(cellCount));
}
BENCHMARK(putBySlice<Array>)->Unit(benchmark::kMillisecond);
BENCHMARK(putBySlice<Map>)->Unit(benchmark::kMillisecond);

template <class Store>
void getBySlice(benchmark::State& state) {
    Store store;
    store.putAll(Variant(block()));
    for (auto _ : state) {
        Variant values;
        store.getAll(values);
        benchmark::DoNotOptimize(values);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(cellCount));
}
BENCHMARK(getBySlice<Array>)->Unit(benchmark::kMillisecond);
BENCHMARK(getBySlice<Map>)->Unit(benchmark::kMillisecond);

std::vector<std::pair<Variant, Variant>> randomPlaces() {
    std::mt19937 random(5);
    std::uniform_int_distribution<std::int32_t> number(1, size);
    std::vector<std::pair<Variant, Variant>> places;
    for (int i = 0; i < 100'000; ++i) places.emplace_back(Variant(number(random)), Variant(number(random)));
    return places;
}

template <class Store>
void putOneByOne(benchmark::State& state) {
    Store store;
    const auto places = randomPlaces();
    for (auto _ : state) {
        for (const auto& [row, column] : places) store.put(row, column, Variant(2.5));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(places.size()));
}
BENCHMARK(putOneByOne<Array>)->Unit(benchmark::kMillisecond);
BENCHMARK(putOneByOne<Map>)->Unit(benchmark::kMillisecond);

template <class Store>
void getOneByOne(benchmark::State& state) {
    Store store;
    store.putAll(Variant(block()));
    const auto places = randomPlaces();
    for (auto _ : state) {
        for (const auto& [row, column] : places) {
            Variant value;
            store.get(row, column, value);
            benchmark::DoNotOptimize(value);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(places.size()));
}
BENCHMARK(getOneByOne<Array>)->Unit(benchmark::kMillisecond);
BENCHMARK(getOneByOne<Map>)->Unit(benchmark::kMillisecond);

template <class Store>
void bytesAtRest(benchmark::State& state) {
    for (auto _ : state) {
        malloc_trim(0);
        const struct mallinfo2 before = mallinfo2();
        std::optional<Store> store(std::in_place);
        store->putAll(Variant(block()));
        const struct mallinfo2 after = mallinfo2();
        const double bytes =
            static_cast<double>(after.uordblks + after.hblkhd) - static_cast<double>(before.uordblks + before.hblkhd);
        state.counters["bytes_per_cell"] = bytes / static_cast<double>(cellCount);
    }
}
BENCHMARK(bytesAtRest<Array>)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(bytesAtRest<Map>)->Iterations(1)->Unit(benchmark::kMillisecond);

void multiplyDoubles(benchmark::State& state) {
    constexpr std::size_t n = 500;
    const std::vector<double> left(n * n, 1.25);
    const std::vector<double> right(n * n, 0.75);
    for (auto _ : state) benchmark::DoNotOptimize(tarq::multiply({left, n, n}, {right, n, n}));
}
BENCHMARK(multiplyDoubles)->Unit(benchmark::kMillisecond);

}  // namespace
