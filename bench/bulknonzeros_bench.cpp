// Blocks of nonzeros and lists of indices through the object interface, each beside the store's own calls.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <memory>
#include <numeric>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "component/bulknonzeros.h"
#include "component/indexlists.h"
#include "model/addressing.h"
#include "model/modelstore.h"
#include "tarq/frame/safearray.h"

namespace {

using namespace tarq;

constexpr std::int32_t side = 1'000;
constexpr std::int32_t million = 1'000'000;

std::string columnName(std::int32_t number) { return std::string("x").append(std::to_string(number)); }

/// So many columns named x1, x2 and so on, and rows without names.
std::unique_ptr<ModelStore> makeStore(std::int32_t columns, std::int32_t rows) {
    auto store = std::make_unique<ModelStore>();
    for (std::int32_t i = 1; i <= columns; ++i) {
        static_cast<void>(store->addColumnRecord({.name = columnName(i)}));
    }
    for (std::int32_t i = 0; i < rows; ++i) static_cast<void>(store->addRowRecord({}));
    return store;
}

std::vector<std::int32_t> numbersTo(std::int32_t count) {
    std::vector<std::int32_t> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

/// Times `fill(store)`, which is to set a full block, on an empty matrix.
template <class Fill>
void measureFilling(benchmark::State& state, const Fill& fill) {
    for (auto _ : state) {
        state.PauseTiming();
        auto store = makeStore(side, side);
        state.ResumeTiming();
        fill(*store);
        state.PauseTiming();
        if (store->nonzeros().size() != million) state.SkipWithError("The block isn't there.");
        store.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * million);
}

void setEach(benchmark::State& state) {
    measureFilling(state, [](ModelStore& store) {
        for (std::int32_t row = 1; row <= side; ++row) {
            for (std::int32_t column = 1; column <= side; ++column) store.setNonzero(column, row, column + row);
        }
    });
}

template <class Element>
Variant blockOf(Kind kind) {
    const std::array dimensions{Dimension{0, side}, Dimension{0, side}};
    SafeArray array;
    static_cast<void>(SafeArray::create(kind, dimensions, array));
    const auto cells = array.elements<Element>();
    for (std::size_t i = 0; i < cells.size(); ++i) cells[i] = Element(static_cast<double>(i + 1));
    return Variant(std::move(array));
}

void putBlock(benchmark::State& state, const Variant& values) {
    const Variant indices(SafeArray::of(numbersTo(side)));
    measureFilling(state, [&](ModelStore& store) {
        if (!putNonzeros(store, indices, indices, values).isOk()) state.SkipWithError("The block was refused.");
    });
}

void putTypedBlock(benchmark::State& state) { putBlock(state, blockOf<double>(Kind::Double)); }
void putBlockOfVariants(benchmark::State& state) { putBlock(state, blockOf<Variant>(Kind::Variant)); }
void putOneValue(benchmark::State& state) { putBlock(state, Variant(1.5)); }

void findEachOfBlock(benchmark::State& state) {
    const auto store = makeStore(side, side);
    const Variant indices(SafeArray::of(numbersTo(side)));
    static_cast<void>(putNonzeros(*store, indices, indices, Variant(1.5)));
    for (auto _ : state) {
        std::vector<double> values(million);
        for (std::int32_t row = 1; row <= side; ++row) {
            for (std::int32_t column = 1; column <= side; ++column) {
                const std::int32_t cell = (row - 1) * side + column - 1;
                values[static_cast<std::size_t>(cell)] = store->nonzeroAt(column, row);
            }
        }
        benchmark::DoNotOptimize(values);
    }
}

void getBlock(benchmark::State& state) {
    const auto store = makeStore(side, side);
    const Variant indices(SafeArray::of(numbersTo(side)));
    static_cast<void>(putNonzeros(*store, indices, indices, Variant(1.5)));
    for (auto _ : state) {
        Variant values;
        if (!getNonzeros(*store, indices, indices, values).isOk()) state.SkipWithError("The block was refused.");
    }
}

/// What a list of a million addresses is made of.
template <class Element>
std::vector<Element> addresses() {
    std::vector<Element> list;
    list.reserve(million);
    for (const std::int32_t number : numbersTo(million)) {
        if constexpr (std::is_arithmetic_v<Element>) {
            list.push_back(static_cast<Element>(number));
        } else {
            list.push_back(Element(columnName(number)));
        }
    }
    return list;
}

template <class Element>
void resolveEach(benchmark::State& state) {
    const auto store = makeStore(million, 0);
    std::vector<Variant> list;
    for (auto& address : addresses<Element>()) list.emplace_back(std::move(address));
    for (auto _ : state) {
        std::vector<std::int32_t> positions(list.size());
        for (std::size_t i = 0; i < list.size(); ++i) {
            static_cast<void>(resolveColumn(*store, list[i], positions[i]));
        }
        benchmark::DoNotOptimize(positions);
    }
    state.SetItemsProcessed(state.iterations() * million);
}

template <class Element>
void resolveList(benchmark::State& state) {
    const auto store = makeStore(million, 0);
    const Variant list(SafeArray::of(addresses<Element>()));
    for (auto _ : state) {
        PositionList positions;
        if (!resolveIndexList(*store, list, IndexedSide::Columns, positions).isOk()) {
            state.SkipWithError("The list was refused.");
        }
        benchmark::DoNotOptimize(positions);
    }
    state.SetItemsProcessed(state.iterations() * million);
}

BENCHMARK(setEach)->Unit(benchmark::kMillisecond);
BENCHMARK(putTypedBlock)->Unit(benchmark::kMillisecond);
BENCHMARK(putBlockOfVariants)->Unit(benchmark::kMillisecond);
BENCHMARK(putOneValue)->Unit(benchmark::kMillisecond);
BENCHMARK(findEachOfBlock)->Unit(benchmark::kMillisecond);
BENCHMARK(getBlock)->Unit(benchmark::kMillisecond);
BENCHMARK(resolveEach<std::int32_t>)->Unit(benchmark::kMillisecond);
BENCHMARK(resolveList<std::int32_t>)->Unit(benchmark::kMillisecond);
BENCHMARK(resolveList<double>)->Unit(benchmark::kMillisecond);
BENCHMARK(resolveEach<std::string>)->Unit(benchmark::kMillisecond);
BENCHMARK(resolveList<std::string>)->Unit(benchmark::kMillisecond);
BENCHMARK(resolveList<Variant>)->Unit(benchmark::kMillisecond);

}  // namespace
