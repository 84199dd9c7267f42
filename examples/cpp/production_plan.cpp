// A week in a furniture workshop: what to make of the wood, the hours and the varnish at hand.
//
// Columns are the pieces to make, with their profit; rows are what they use up. The shadow price of a row says what one
// more unit of it would be worth.
#include <array>
#include <cstdio>

#include "check.h"

using namespace tarq;

namespace {

struct Piece {
    const char* name;
    double profit;  // euros
    double demand;  // the largest number that sells
};
constexpr std::array pieces{Piece{"chair", 45, 60}, Piece{"table", 120, 30}, Piece{"shelf", 80, 40},
                            Piece{"cabinet", 200, 15}};

struct Resource {
    const char* name;
    double available;
    std::array<double, pieces.size()> needs;  // of one piece each
};
constexpr std::array resources{Resource{"wood", 1200, {5, 20, 12, 35}}, Resource{"saw hours", 150, {0.8, 2, 1.5, 4}},
                               Resource{"assembly hours", 170, {1.5, 2.5, 1, 6}},
                               Resource{"varnish", 110, {0.5, 2, 1, 3}}};

void build(ITARQModel& model) {
    double infinity = 0;
    check(model.get_INF(&infinity));
    check(model.put_ModelName("workshop"));
    check(model.put_Parameter("xminmx", Variant("max")));
    for (const Piece& piece : pieces) {
        check(model.AddCol(0, piece.demand, TARQColType::Continuous, Variant(piece.profit), Variant(piece.name)));
    }
    for (const Resource& resource : resources) {
        check(model.AddRow(-infinity, resource.available, Variant(resource.name)));
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            check(model.put_NZ(Variant(resource.name), Variant(pieces[i].name), resource.needs[i]));
        }
    }
}

void show(ITARQModel& model) {
    std::printf("workshop: profit %.2f\n",
                valueOf<double>([&](double* value) { return model.get_LPObjFunctValue(value); }));
    for (const Piece& piece : pieces) {
        const Variant name(piece.name);
        double made = 0;
        double reducedCost = 0;
        check(model.get_ColLPSol(name, &made));
        check(model.get_ColRedCost(name, &reducedCost));
        std::printf("  %-15s %8.2f   one more brings %7.2f\n", piece.name, made, reducedCost + 0.0);
    }
    for (const Resource& resource : resources) {
        const Variant name(resource.name);
        double used = 0;
        double shadowPrice = 0;
        check(model.get_RowLPSol(name, &used));
        check(model.get_RowDual(name, &shadowPrice));
        std::printf("  %-15s %8.2f   one more is worth %7.2f\n", resource.name, used, shadowPrice + 0.0);
    }
}

void plan() {
    const Ref<ITARQModel> model = newModel();
    build(*model);
    check(model->Optimize());
    const auto status =
        valueOf<TARQSolutionStatusTyp>([&](TARQSolutionStatusTyp* value) { return model->get_SolutionStatus(value); });
    if (status != TARQSolutionStatusTyp::LPOptimalSolution) throw std::runtime_error("there is no plan");
    show(*model);
}

}  // namespace

int main() { return exitCode(plan); }
