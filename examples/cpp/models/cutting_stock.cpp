// How to cut rolls of paper so that the orders are met from the fewest rolls, by column generation.
//
// A column of the master problem is a pattern: how many pieces of each width are cut from one roll. The shadow prices
// of the orders say what a piece is worth; a rucksack problem, a model of its own, looks for the pattern that is worth
// more than a roll. When there is none the linear master is solved, and its patterns are used in whole rolls.
#include <cmath>

#include "algebra.h"

using namespace tarq;

namespace {

constexpr double roll = 560;  // centimetres
const Names widths{"138", "152", "156", "171", "182", "188", "200", "205", "210", "214", "220"};
const Numbers pieceWidths{138, 152, 156, 171, 182, 188, 200, 205, 210, 214, 220};
const Numbers orders{22, 25, 12, 14, 18, 18, 20, 10, 12, 14, 16};

Numbers piecesOfOneWidth() {
    Numbers pieces;
    for (const double width : pieceWidths) pieces.push_back(std::floor(roll / width));
    return pieces;
}

/// The fewest rolls with the patterns known so far. To begin with, each pattern cuts one width only.
struct Master {
    Ref<ITARQModel> model = newModel();
    Rows order{*model, "order", {widths}};
    Table patterns;  // pieces of each width

    Master() {
        order.atLeast(orders);
        const Numbers most = piecesOfOneWidth();
        for (std::size_t i = 0; i < widths.size(); ++i) {
            Numbers pattern(widths.size());
            pattern[i] = most[i];
            add(std::move(pattern));
        }
    }

    void add(Numbers pattern) {
        patterns.push_back(std::move(pattern));
        double infinity = 0;
        check(model->get_INF(&infinity));
        const Variant name(nameOf(patterns.size() - 1));
        check(model->AddCol(0, infinity, TARQColType::Continuous, Variant(1), name));
        for (std::size_t i = 0; i < widths.size(); ++i) {
            check(model->put_NZ(Variant("order." + widths[i]), name, patterns.back()[i]));
        }
    }

    static std::string nameOf(std::size_t pattern) {
        std::string name("pattern.");
        return name += std::to_string(pattern + 1);
    }
};

/// The pattern that is worth the most when a piece of each width has a price.
struct PatternSearch {
    Ref<ITARQModel> model = newModel();
    Columns pieces{*model, "pieces", {widths}};

    PatternSearch() {
        check(model->put_Parameter("xminmx", Variant("max")));
        check(model->put_Parameter("xglgap", Variant(0)));
        pieces.put(&ITARQVarSet::put_UB, piecesOfOneWidth());
        pieces.put(&ITARQVarSet::put_Type, TARQColType::Integer);
        const Ref<ITARQRes> length = newRow(*model, "roll");
        check(length->SetLT(roll));
        check(length->Sum(terms(pieceWidths, pieces)));
    }

    std::pair<double, Numbers> best(const Numbers& prices) {
        pieces.put(&ITARQVarSet::put_Cost, prices);
        const double worth = solve(*model, TARQSolutionStatusTyp::IPOptimalSolution);
        Numbers found;
        for (const std::string& width : widths) {
            found.push_back(std::round(pieces.get(&ITARQVarSet::get_IPSol, width)));
        }
        return {worth, found};
    }
};

/// Adds patterns until none is worth more than a roll, and gives the bound that this proves.
double generate(Master& master) {
    PatternSearch search;
    while (true) {
        const double rolls = solve(*master.model, TARQSolutionStatusTyp::LPOptimalSolution);
        Numbers prices;
        for (const std::string& width : widths) prices.push_back(master.order.get(&ITARQResSet::get_Dual, width));
        auto [worth, pattern] = search.best(prices);
        if (worth <= 1 + 1e-7) return rolls;
        master.add(std::move(pattern));
    }
}

void show(const Master& master) {
    for (std::size_t p = 0; p < master.patterns.size(); ++p) {
        const auto rolls = valueOf<double>(
            [&](double* value) { return master.model->get_ColIPSol(Variant(Master::nameOf(p)), value); });
        if (rolls < 0.5) continue;
        std::printf("  %3.0f rolls into", rolls);
        const char* separator = " ";
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (master.patterns[p][i] == 0) continue;
            std::printf("%s%g x %s", std::exchange(separator, ", "), master.patterns[p][i], widths[i].c_str());
        }
        std::printf("\n");
    }
}

void cut() {
    Master master;
    const double bound = generate(master);
    for (std::size_t p = 0; p < master.patterns.size(); ++p) {
        check(master.model->put_ColType(Variant(Master::nameOf(p)), TARQColType::Integer));
    }
    check(master.model->put_Parameter("xglgap", Variant(0)));
    const double rolls = solve(*master.model, TARQSolutionStatusTyp::IPOptimalSolution);
    show(master);
    std::printf("%g rolls, %.4f at least\n", rolls, bound);
}

}  // namespace

int main() { return exitCode(cut); }
