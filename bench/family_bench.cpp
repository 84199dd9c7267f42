// A family of 100,000 columns beside the plain form of the same: ordered maps from names to ordinals and to columns.
#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "tarq/component/createobject.h"
#include "tarq/frame/safearray.h"
#include "tarq/interfaces/itarqmodel.h"
#include "tarq/interfaces/itarqvarset.h"

namespace {

using tarq::Dimension;
using tarq::SafeArray;
using tarq::Variant;

constexpr std::int32_t plants = 100;
constexpr std::int32_t markets = 1000;
constexpr std::size_t memberCount = static_cast<std::size_t>(plants) * markets;

SafeArray table() {
    SafeArray array;
    const std::array<Dimension, 2> dimensions{Dimension{0, plants}, Dimension{0, markets}};
    (void)SafeArray::create(tarq::Kind::Double, dimensions, array);
    double number = 1;
    for (double& value : array.elements<double>()) value = number++;
    return array;
}

/// The component's family and model, through their interfaces.
class Family {
public:
    Family() : model_(tarq::createObject<tarq::ITARQModel>("TARQModel")), family_(newFamily()) {}
    void create() { (void)family_->Init(model_.get(), "ship", tarq::ValueList({Variant(plants), Variant(markets)})); }
    void drop() { (void)family_->Clear(); }
    void write(const Variant& value) { (void)family_->put_UB(missing_, missing_, missing_, missing_, missing_, value); }
    void solve() {
        (void)model_->put_LocationOfTARQDLL(ENGINE);
        (void)model_->put_Parameter("xminmx", Variant("max"));
        (void)family_->put_Cost(missing_, missing_, missing_, missing_, missing_, Variant(1.0));
        (void)model_->Optimize();
    }
    tarq::Status read(Variant& value) {
        return family_->get_LPSol(missing_, missing_, missing_, missing_, missing_, &value);
    }
    std::vector<Variant> names() {
        std::vector<Variant> names;
        for (std::size_t number = 1; number <= memberCount; ++number) {
            std::string name;
            (void)family_->get_VarName(static_cast<std::int32_t>(number), &name);
            names.emplace_back(std::move(name));
        }
        return names;
    }
    std::int64_t find(const Variant& name) {
        std::int32_t number = 0;
        (void)model_->get_ColIndex(name, &number);
        return number;
    }

private:
    static tarq::Ref<tarq::ITARQVarSet> newFamily() { return tarq::createObject<tarq::ITARQVarSet>("TARQVarSet"); }

    tarq::Ref<tarq::ITARQModel> model_;
    tarq::Ref<tarq::ITARQVarSet> family_;
    Variant missing_ = Variant::missing();
};

/// A column as the component keeps it, known by its name in an ordered map; the family knows names and ordinals.
class Maps {
public:
    void create() {
        for (std::int32_t plant = 1; plant <= plants; ++plant) {
            for (std::int32_t market = 1; market <= markets; ++market) {
                const std::string name = nameOf(plant, market);
                ordinals_.emplace(name, names_.size());
                names_.push_back(name);
            }
        }
        for (const std::string& name : names_) {
            positions_.emplace(name, columns_.size());
            columns_.push_back({.name = name});
        }
    }
    void drop() { *this = Maps(); }
    void write(const Variant& value) {
        std::vector<Variant> values;
        for (const double number : value.array().elements<double>()) values.emplace_back(number);
        std::size_t turn = 0;
        for (const std::string& name : selected()) {
            columns_[ordinals_.find(name)->second].upper = values[turn++].real();
        }
    }
    void solve() {
        for (Column& column : columns_) column.solution = column.upper;
    }
    tarq::Status read(Variant& value) {
        std::vector<double> values;
        for (const std::string& name : selected()) values.push_back(columns_[positions_.find(name)->second].solution);
        SafeArray array;
        const std::array<Dimension, 2> dimensions{Dimension{0, plants}, Dimension{0, markets}};
        (void)SafeArray::create(tarq::Kind::Double, dimensions, array);
        for (std::size_t i = 0; i < values.size(); ++i) array.elements<double>()[i] = values[i];
        value = Variant(std::move(array));
        return tarq::status::ok;
    }
    std::vector<Variant> names() {
        std::vector<Variant> names;
        for (const std::string& name : names_) names.emplace_back(name);
        return names;
    }
    std::int64_t find(const Variant& name) {
        return static_cast<std::int64_t>(positions_.find(name.text())->second) + 1;
    }

private:
    struct Column {
        std::string name;
        std::array<double, 8> others{};
        double upper = 1e25;
        double solution = 0;
    };

    static std::string nameOf(std::int32_t plant, std::int32_t market) {
        return std::string("ship.").append(std::to_string(plant)).append(".").append(std::to_string(market));
    }
    static std::vector<std::string> selected() {
        std::vector<std::string> names;
        for (std::int32_t plant = 1; plant <= plants; ++plant) {
            for (std::int32_t market = 1; market <= markets; ++market) names.push_back(nameOf(plant, market));
        }
        return names;
    }

    std::map<std::string, std::size_t> ordinals_;
    std::vector<std::string> names_;
    std::map<std::string, std::size_t> positions_;
    std::vector<Column> columns_;
};

void countMembers(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(memberCount));
}

template <class Form>
void createFamily(benchmark::State& state) {
    for (auto _ : state) {
        Form form;
        form.create();
        state.PauseTiming();
        form.drop();
        state.ResumeTiming();
    }
    countMembers(state);
}
BENCHMARK(createFamily<Family>)->Unit(benchmark::kMillisecond);
BENCHMARK(createFamily<Maps>)->Unit(benchmark::kMillisecond);

template <class Form>
void writeUpperBounds(benchmark::State& state) {
    Form form;
    form.create();
    const Variant values(table());
    for (auto _ : state) form.write(values);
    countMembers(state);
}
BENCHMARK(writeUpperBounds<Family>)->Unit(benchmark::kMillisecond);
BENCHMARK(writeUpperBounds<Maps>)->Unit(benchmark::kMillisecond);

template <class Form>
void readSolution(benchmark::State& state) {
    Form form;
    form.create();
    form.write(Variant(table()));
    form.solve();
    Variant value;
    for (auto _ : state) {
        if (!form.read(value).isOk() || value.array().elements<double>()[memberCount - 1] != memberCount) {
            state.SkipWithError("no solution");
        }
    }
    countMembers(state);
}
BENCHMARK(readSolution<Family>)->Unit(benchmark::kMillisecond);
BENCHMARK(readSolution<Maps>)->Unit(benchmark::kMillisecond);

/// What of the reading is only looking up the names.
template <class Form>
void findNames(benchmark::State& state) {
    Form form;
    form.create();
    const std::vector<Variant> names = form.names();
    for (auto _ : state) {
        std::int64_t sum = 0;
        for (const Variant& name : names) sum += form.find(name);
        benchmark::DoNotOptimize(sum);
    }
    countMembers(state);
}
BENCHMARK(findNames<Family>)->Unit(benchmark::kMillisecond);
BENCHMARK(findNames<Maps>)->Unit(benchmark::kMillisecond);

}  // namespace
