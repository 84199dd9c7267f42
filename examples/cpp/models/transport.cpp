// What to ship from which plant to which city, so that every city gets what it wants at the least cost.
//
// Columns are a family over plants and cities. A plant's row limits what it sends, a city's row asks for what it
// wants; the shadow prices of the cities say what one pallet more would cost.
#include "../program.h"

using namespace tarq::client;

namespace {

// Euros a pallet; pallets that a plant has and that a city wants.
const Names plants{"Ulm", "Trier", "Halle"};
const Names cities{"Bremen", "Erfurt", "Kassel", "Leipzig"};
const Table costs{{18, 11, 12, 14}, {14, 13, 9, 17}, {12, 5, 8, 2}};
const Numbers supplies{310, 260, 280};
const Numbers demands{220, 190, 150, 240};

struct Transport {
    Columns ship;
    Rows demand;
};

Transport build(const Model& model) {
    Transport transport{Columns(model, "ship", plants, cities), Rows(model, "demand", cities)};
    transport.ship.Cost() = costs;
    transport.demand.atLeast(demands);
    for (const std::string& city : cities) {
        transport.demand.row(city).sum(transport.ship.slice(all, city));
    }
    const Rows supply(model, "supply", plants);
    supply.atMost(supplies);
    for (const std::string& plant : plants) supply.row(plant).sum(transport.ship.slice(plant));
    return transport;
}

void transport() {
    const Model model;
    const Transport built = build(model);
    const double freight = model.optimum();
    std::printf("%-18s", "");
    for (const std::string& city : cities) std::printf("%10s", city.c_str());
    for (const std::string& plant : plants) {
        std::printf("\n%-18s", plant.c_str());
        for (const std::string& city : cities) std::printf("%10g", built.ship.LPSol(plant, city).number());
    }
    std::printf("\n%-18s", "one pallet more");
    for (const std::string& city : cities) std::printf("%10g", built.demand.Dual(city).number());
    std::printf("\nshipping costs %.2f euros\n", freight);
}

}  // namespace

int main() { return exitCode(transport); }
