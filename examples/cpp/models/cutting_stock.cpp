// How to cut rolls of paper so that the orders are met from the fewest rolls, by column generation.
//
// A column of the master problem is a pattern: how many pieces of each width are cut from one roll. The shadow prices
// of the orders say what a piece is worth; a rucksack problem, a model of its own, looks for the pattern that is worth
// more than a roll. When there is none the linear master is solved, and its patterns are used in whole rolls.
#include <cmath>

#include "../program.h"

using namespace tarq::client;
using tarq::TARQColType;

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
    Model model;
    Rows order{model, "order", widths};
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
        const std::string name = nameOf(patterns.size() - 1);
        model.addColumn(name, {.cost = 1});
        for (std::size_t i = 0; i < widths.size(); ++i) model.NZ("order." + widths[i], name) = patterns.back()[i];
    }

    static std::string nameOf(std::size_t pattern) {
        std::string name("pattern.");
        return name += std::to_string(pattern + 1);
    }
};

/// The pattern that is worth the most when a piece of each width has a price.
struct PatternSearch {
    Model model;
    Columns pieces{model, "pieces", widths};

    PatternSearch() {
        model.Parameter("xminmx") = "max";
        model.Parameter("xglgap") = 0;
        pieces.UB() = piecesOfOneWidth();
        pieces.Type() = TARQColType::Integer;
        const Row length(model, "roll");
        length.atMost(roll);
        length.sum(pieceWidths, pieces);
    }

    std::pair<double, Numbers> best(const Numbers& prices) {
        pieces.Cost() = prices;
        const double worth = model.optimum();
        Numbers found;
        for (const std::string& width : widths) {
            found.push_back(std::round(pieces.IPSol(width).number()));
        }
        return {worth, found};
    }
};

/// Adds patterns until none is worth more than a roll, and gives the bound that this proves.
double generate(Master& master) {
    PatternSearch search;
    while (true) {
        const double rolls = master.model.optimum();
        Numbers prices;
        for (const std::string& width : widths) prices.push_back(master.order.Dual(width).number());
        auto [worth, pattern] = search.best(prices);
        if (worth <= 1 + 1e-7) return rolls;
        master.add(std::move(pattern));
    }
}

void show(const Master& master) {
    for (std::size_t p = 0; p < master.patterns.size(); ++p) {
        const double rolls = master.model.ColIPSol(Master::nameOf(p));
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
        master.model.ColType(Master::nameOf(p)) = TARQColType::Integer;
    }
    master.model.Parameter("xglgap") = 0;
    const double rolls = master.model.optimum();
    show(master);
    std::printf("%g rolls, %.4f at least\n", rolls, bound);
}

}  // namespace

int main() { return exitCode(cut); }
