// A week in a furniture workshop: what to make of the wood, the hours and the varnish at hand.
//
// Columns are the pieces to make, with their profit; rows are what they use up. The shadow price of a row says what one
// more unit of it would be worth.
#include <array>
#include <cstdio>

#include "program.h"

using namespace tarq::client;
using tarq::ITARQModel;

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

void build(const Model& model) {
    model.put(&ITARQModel::put_ModelName, "workshop");
    model.Parameter("xminmx") = "max";
    for (const Piece& piece : pieces) model.addColumn(piece.name, {.upper = piece.demand, .cost = piece.profit});
    for (const Resource& resource : resources) {
        model.addRow(resource.name, {.upper = resource.available});
        for (std::size_t i = 0; i < pieces.size(); ++i) model.NZ(resource.name, pieces[i].name) = resource.needs[i];
    }
}

void plan() {
    const Model model;
    build(model);
    std::printf("workshop: profit %.2f\n", model.optimum());
    for (const Piece& piece : pieces) {
        std::printf("  %-15s %8.2f   one more brings %7.2f\n", piece.name, model.ColLPSol(piece.name),
                    model.ColRedCost(piece.name) + 0.0);
    }
    for (const Resource& resource : resources) {
        std::printf("  %-15s %8.2f   one more is worth %7.2f\n", resource.name, model.RowLPSol(resource.name),
                    model.RowDual(resource.name) + 0.0);
    }
}

}  // namespace

int main() { return exitCode(plan); }
