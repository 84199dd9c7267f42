// What to take along: the most valuable things that a rucksack holds, a model of yes-or-no columns with one row.
#include "algebra.h"

using namespace tarq;

namespace {

// Values, and weights in decagrams.
const Names things{"tent",  "stove", "sleeping bag", "camera", "lens", "book", "rope",
                   "water", "bread", "rain jacket",  "boots",  "map",  "lamp", "first aid"};
const Numbers values{95, 60, 88, 52, 31, 18, 64, 90, 47, 58, 71, 20, 26, 45};
const Numbers weights{210, 85, 140, 76, 49, 33, 127, 200, 62, 71, 155, 9, 21, 48};
constexpr double holds = 790;

struct Rucksack {
    Columns take;
    Ref<ITARQRes> weight;
};

Rucksack build(ITARQModel& model) {
    check(model.put_Parameter("xminmx", Variant("max")));
    check(model.put_Parameter("xglgap", Variant(0)));  // not only nearly the best
    Rucksack rucksack{Columns(model, "take", {things}), newRow(model, "weight")};
    rucksack.take.put(&ITARQVarSet::put_Type, TARQColType::Binary);
    rucksack.take.put(&ITARQVarSet::put_Cost, values);
    check(rucksack.weight->SetLT(holds));
    check(rucksack.weight->Sum(terms(weights, rucksack.take)));
    return rucksack;
}

void pack() {
    const Ref<ITARQModel> model = newModel();
    const Rucksack rucksack = build(*model);
    const double worth = solve(*model, TARQSolutionStatusTyp::IPOptimalSolution);
    const char* separator = "  ";
    for (const std::string& thing : things) {
        if (rucksack.take.get(&ITARQVarSet::get_IPSol, thing) < 0.5) continue;
        std::printf("%s%s", std::exchange(separator, ", "), thing.c_str());
    }
    std::printf("\nworth %g, %g of %g decagrams\n", worth,
                valueOf<double>([&](double* value) { return rucksack.weight->get_IPSol(value); }), holds);
}

}  // namespace

int main() { return exitCode(pack); }
