// Which power stations run at which hours of a day, so that the load is covered at the least cost.
//
// A station that runs makes at least so much and at most so much; starting it costs, and in the hour of its start it is
// not above `ramp`. Stations that run keep a reserve. Families over stations and hours hold the columns; a start is
// what runs now and did not run an hour before, entered with a shifted index.
#include "../program.h"

using namespace tarq::client;
using tarq::TARQColType;

namespace {

const Names hours{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"};
const Names afterFirst(hours.begin() + 1, hours.end());
const Names beforeLast(hours.begin(), hours.end() - 1);
const Numbers loads{340, 310, 300, 330, 420, 560, 680, 730, 700, 620, 520, 410};  // megawatts
constexpr double reserveShare = 0.08;                                             // of the load

struct Station {
    const char* name;
    double least;     // megawatts
    double most;      // megawatts
    double cost;      // euros a megawatt hour
    double running;   // euros an hour
    double starting;  // euros a start
    double ramp;      // megawatts in the hour of a start
    bool runsBefore;
};
constexpr std::array stations{
    Station{"lignite", 150, 320, 28, 900, 12000, 200, true}, Station{"coal", 90, 250, 36, 650, 6000, 150, true},
    Station{"gas", 40, 180, 58, 300, 1800, 120, false}, Station{"turbine", 10, 90, 96, 80, 250, 90, false}};

Names namesOfStations() {
    Names names;
    for (const Station& station : stations) names.emplace_back(station.name);
    return names;
}
const Names names = namesOfStations();

struct Day {
    Columns power;
    Columns runs;
    Columns starts;
};

void coverLoad(const Model& model, const Day& day) {
    const Rows load(model, "load", hours);
    load.exactly(loads);
    Numbers reserves;
    for (const double megawatts : loads) reserves.push_back((1 + reserveShare) * megawatts);
    const Rows reserve(model, "reserve", hours);
    reserve.atLeast(reserves);
    for (const Station& station : stations) {
        model.SetNZStair(load, day.power.slice(station.name), 1);
        model.SetNZStair(reserve, day.runs.slice(station.name), station.most);
    }
}

// power - least * runs >= 0 and power - most * runs + (most - ramp) * starts <= 0
void limitPower(const Model& model, const Day& day) {
    const Rows least(model, "least", names, hours);
    least.atLeast(0);
    const Rows most(model, "most", names, hours);
    most.atMost(0);
    model.SetNZStair(least, day.power, 1);
    model.SetNZStair(most, day.power, 1);
    for (const Station& station : stations) {
        const char* const name = station.name;
        model.SetNZStair(least.slice(name), day.runs.slice(name), -station.least);
        model.SetNZStair(most.slice(name), day.runs.slice(name), -station.most);
        model.SetNZStair(most.slice(name), day.starts.slice(name), station.most - station.ramp);
    }
}

// starts - runs + runs an hour before >= 0
void countStarts(const Model& model, const Day& day) {
    const Rows begin(model, "begin", names, hours);
    begin.atLeast(0);
    model.SetNZStair(begin, day.starts, 1);
    model.SetNZStair(begin, day.runs, -1);
    model.SetNZStair(begin.slice(all, afterFirst), day.runs.slice(all, beforeLast), 1);
    for (const Station& station : stations) {
        begin.LB(station.name, hours.front()) = station.runsBefore ? -1 : 0;
    }
}

Day build(const Model& model) {
    model.Parameter("xglgap") = 0;
    Day day{Columns(model, "power", names, hours), Columns(model, "runs", names, hours),
            Columns(model, "starts", names, hours)};
    day.runs.Type() = TARQColType::Binary;
    day.starts.UB() = 1;
    for (const Station& station : stations) {
        day.power.Cost(station.name) = station.cost;
        day.runs.Cost(station.name) = station.running;
        day.starts.Cost(station.name) = station.starting;
    }
    coverLoad(model, day);
    limitPower(model, day);
    countStarts(model, day);
    return day;
}

void commit() {
    const Model model;
    const Day day = build(model);
    const double spent = model.optimum();
    for (const std::string& name : names) {
        std::printf("%-8s", name.c_str());
        for (const std::string& hour : hours) std::printf("%7.1f", day.power.IPSol(name, hour).number());
        std::printf("\n");
    }
    std::printf("the day costs %.2f euros\n", spent);
}

}  // namespace

int main() { return exitCode(commit); }
