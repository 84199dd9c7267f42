// Loads a courier's vans by value while the program goes on: progress once a second, and a stop after SECONDS.
//
// usage: background_run [SECONDS]
//
// Which of 250 parcels go along is limited by 30 things at once. Good loads are found soon; to prove the best one takes
// longer than anybody waits.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <random>
#include <string>

#include "program.h"

using namespace tarq::client;
using tarq::ITARQModel;
using tarq::TARQColType;
using tarq::TARQSolutionStatusTyp;

namespace {

constexpr int parcels = 250;
constexpr int limits = 30;

std::string limitName(int limit) { return "limit " + std::to_string(limit); }

void build(const Model& model) {
    std::mt19937 random(7);
    const auto between = [&](int least, int most) { return std::uniform_int_distribution(least, most)(random); };
    model.put(&ITARQModel::put_ModelName, "courier");
    model.Parameter("xminmx") = "max";
    for (int limit = 1; limit <= limits; ++limit) model.addRow(limitName(limit), {.lower = 0, .upper = 0});
    double total[limits + 1] = {};
    for (int parcel = 1; parcel <= parcels; ++parcel) {
        model.addColumn("parcel " + std::to_string(parcel),
                        {.upper = 1, .cost = 1.0 * between(40, 120), .type = TARQColType::Binary});
        for (int limit = 1; limit <= limits; ++limit) {
            const int weight = between(5, 100);
            total[limit] += weight;
            model.NZ(limit, parcel) = weight;
        }
    }
    for (int limit = 1; limit <= limits; ++limit) model.RowRHS(limitName(limit)) = 0.4 * total[limit];
}

void showProgress(const Model& model, int seconds) {
    std::printf("%3d s  %6d nodes  best load %.0f  bound %.1f\n", seconds,
                model.get(&ITARQModel::get_NumberOfNodesProcessed), model.get(&ITARQModel::get_IPObjFunctValue),
                model.get(&ITARQModel::get_IPObjFunctBestPossible));
}

/// Waits for the end of the run, and asks for it when the time is up.
void watch(const Model& model, const std::future<void>& finished, int seconds) {
    int waited = 0;
    while (finished.wait_for(std::chrono::seconds(1)) != std::future_status::ready) {
        showProgress(model, ++waited);
        if (waited != seconds) continue;
        std::puts("that will do");
        model.call(&ITARQModel::StopOptimizeAsync);
    }
}

void showLoad(const Model& model) {
    const auto status = model.get(&ITARQModel::get_SolutionStatus);
    if (status != TARQSolutionStatusTyp::IPOptimalSolution && status != TARQSolutionStatusTyp::IPSubOptimalSolution) {
        throw std::runtime_error("no load was found");
    }
    int loaded = 0;
    for (int parcel = 1; parcel <= parcels; ++parcel) loaded += model.ColIPSol(parcel) > 0.5 ? 1 : 0;
    std::printf("best load: %d parcels, value %.0f\n", loaded, model.get(&ITARQModel::get_IPObjFunctValue));
}

void run(int seconds) {
    const Model model;
    build(model);
    std::promise<void> end;
    const std::uint32_t cookie = model.onFinished([&] { end.set_value(); });  // called on the thread of the run
    model.call(&ITARQModel::OptimizeAsync);
    watch(model, end.get_future(), seconds);
    model.forget(cookie);
    showLoad(model);
}

}  // namespace

int main(int argc, char** argv) {
    return exitCode([&] { run(argc > 1 ? std::atoi(argv[1]) : 10); });
}
