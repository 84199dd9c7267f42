// What to take along: the most valuable things that a rucksack holds, a model of yes-or-no columns with one row.
#include "../program.h"

using namespace tarq::client;
using tarq::TARQColType;

namespace {

// Values, and weights in decagrams.
const Names things{"tent",  "stove", "sleeping bag", "camera", "lens", "book", "rope",
                   "water", "bread", "rain jacket",  "boots",  "map",  "lamp", "first aid"};
const Numbers values{95, 60, 88, 52, 31, 18, 64, 90, 47, 58, 71, 20, 26, 45};
const Numbers weights{210, 85, 140, 76, 49, 33, 127, 200, 62, 71, 155, 9, 21, 48};
constexpr double holds = 790;

struct Rucksack {
    Columns take;
    Row weight;
};

Rucksack build(const Model& model) {
    model.Parameter("xminmx") = "max";
    model.Parameter("xglgap") = 0;  // not only nearly the best
    Rucksack rucksack{Columns(model, "take", things), Row(model, "weight")};
    rucksack.take.Type() = TARQColType::Binary;
    rucksack.take.Cost() = values;
    rucksack.weight.atMost(holds);
    rucksack.weight.sum(weights, rucksack.take);
    return rucksack;
}

void pack() {
    const Model model;
    const Rucksack rucksack = build(model);
    const double worth = model.optimum();
    const char* separator = "  ";
    for (const std::string& thing : things) {
        if (rucksack.take.IPSol(thing).number() < 0.5) continue;
        std::printf("%s%s", std::exchange(separator, ", "), thing.c_str());
    }
    std::printf("\nworth %g, %g of %g decagrams\n", worth, rucksack.weight.IPSol(), holds);
}

}  // namespace

int main() { return exitCode(pack); }
