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

#include "check.h"

using namespace tarq;

namespace {

constexpr int parcels = 250;
constexpr int limits = 30;

Variant limitName(int limit) { return Variant("limit " + std::to_string(limit)); }

void build(ITARQModel& model) {
    std::mt19937 random(7);
    const auto between = [&](int least, int most) { return std::uniform_int_distribution(least, most)(random); };
    check(model.put_ModelName("courier"));
    check(model.put_Parameter("xminmx", Variant("max")));
    for (int limit = 1; limit <= limits; ++limit) check(model.AddRow(0, 0, limitName(limit)));
    double total[limits + 1] = {};
    for (int parcel = 1; parcel <= parcels; ++parcel) {
        check(model.AddCol(0, 1, TARQColType::Binary, Variant(between(40, 120)),
                           Variant("parcel " + std::to_string(parcel))));
        for (int limit = 1; limit <= limits; ++limit) {
            const int weight = between(5, 100);
            total[limit] += weight;
            check(model.put_NZ(Variant(limit), Variant(parcel), weight));
        }
    }
    for (int limit = 1; limit <= limits; ++limit) check(model.put_RowRHS(limitName(limit), 0.4 * total[limit]));
}

void showProgress(ITARQModel& model, int seconds) {
    std::int32_t nodes = 0;
    double best = 0;
    double bound = 0;
    check(model.get_NumberOfNodesProcessed(&nodes));
    check(model.get_IPObjFunctValue(&best));
    check(model.get_IPObjFunctBestPossible(&bound));
    std::printf("%3d s  %6d nodes  best load %.0f  bound %.1f\n", seconds, nodes, best, bound);
}

/// Waits for the end of the run, and asks for it when the time is up.
void watch(ITARQModel& model, const std::future<void>& finished, int seconds) {
    int waited = 0;
    while (finished.wait_for(std::chrono::seconds(1)) != std::future_status::ready) {
        showProgress(model, ++waited);
        if (waited != seconds) continue;
        std::puts("that will do");
        check(model.StopOptimizeAsync());
    }
}

void showLoad(ITARQModel& model) {
    const auto status =
        valueOf<TARQSolutionStatusTyp>([&](TARQSolutionStatusTyp* value) { return model.get_SolutionStatus(value); });
    if (status != TARQSolutionStatusTyp::IPOptimalSolution && status != TARQSolutionStatusTyp::IPSubOptimalSolution) {
        throw std::runtime_error("no load was found");
    }
    int loaded = 0;
    for (int parcel = 1; parcel <= parcels; ++parcel) {
        loaded +=
            valueOf<double>([&](double* value) { return model.get_ColIPSol(Variant(parcel), value); }) > 0.5 ? 1 : 0;
    }
    double value = 0;
    check(model.get_IPObjFunctValue(&value));
    std::printf("best load: %d parcels, value %.0f\n", loaded, value);
}

void run(int seconds) {
    const Ref<ITARQModel> model = newModel();
    build(*model);
    std::promise<void> end;
    std::uint32_t cookie = 0;
    check(adviseFinished(
        *model, [&] { end.set_value(); }, &cookie));  // called on the thread of the run
    check(model->OptimizeAsync());
    watch(*model, end.get_future(), seconds);
    check(unadviseFinished(*model, cookie));
    showLoad(*model);
}

}  // namespace

int main(int argc, char** argv) {
    return exitCode([&] { run(argc > 1 ? std::atoi(argv[1]) : 10); });
}
