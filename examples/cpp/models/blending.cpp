// The cheapest feed for cattle: a mixture that holds what the animals need and not too much of what harms them.
//
// Columns are the parts of the ingredients in one tonne of feed. A row for each nutrient bounds what the mixture holds
// of it, on both sides.
#include "../program.h"

using namespace tarq::client;

namespace {

const Names ingredients{"barley", "maize", "rapeseed", "soya", "bran", "chalk"};
const Numbers prices{182, 205, 260, 410, 150, 60};    // euros a tonne
const Numbers limits{0.6, 0.5, 0.15, 1, 0.25, 0.03};  // largest part in the mixture

// Content in grams a kilogram (energy: megajoules): the mixture's smallest and largest, and that of each ingredient.
const Names nutrients{"protein", "energy", "fibre", "calcium", "phosphorus"};
const Numbers least{160, 11.8, 40, 7, 4};
const Numbers most{190, 12.6, 75, 11, 6.5};
const Table amounts{{106, 88, 343, 449, 141, 0},
                    {12.9, 13.3, 12.0, 13.8, 9.9, 0},
                    {46, 22, 115, 60, 114, 0},
                    {0.6, 0.3, 7.0, 2.9, 1.6, 380},
                    {3.6, 3.0, 11.0, 6.4, 11.5, 0.2}};

struct Feed {
    Columns part;
    Rows content;
};

Feed build(const Model& model) {
    Feed feed{Columns(model, "part", ingredients), Rows(model, "content", nutrients)};
    feed.part.Cost() = prices;
    feed.part.UB() = limits;
    const Row whole(model, "whole");
    whole.exactly(1);
    whole.sum(feed.part);
    feed.content.UB() = most;
    feed.content.LB() = least;
    for (std::size_t i = 0; i < nutrients.size(); ++i) {
        feed.content.row(nutrients[i]).sum(amounts[i], feed.part);
    }
    return feed;
}

void mix() {
    const Model model;
    const Feed feed = build(model);
    const double price = model.optimum();
    for (const std::string& ingredient : ingredients) {
        std::printf("  %-10s %6.2f %%\n", ingredient.c_str(), 100 * feed.part.LPSol(ingredient).number());
    }
    for (const std::string& nutrient : nutrients) {
        std::printf("  %-10s %8.3f   one more costs %9.4f\n", nutrient.c_str(), feed.content.LPSol(nutrient).number(),
                    feed.content.Dual(nutrient).number() + 0.0);
    }
    std::printf("a tonne of feed costs %.4f euros\n", price);
}

}  // namespace

int main() { return exitCode(mix); }
