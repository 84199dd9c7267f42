// What to make and what to store over half a year, so that every month's demand is met at the least cost.
//
// Columns and rows are families over products and months. What is in store at the end of one month is there at the
// start of the next: the balance of a month has the store of the month before it, a shifted index that one call enters.
#include "../program.h"

using namespace tarq::client;

namespace {

const Names months{"Jan", "Feb", "Mar", "Apr", "May", "Jun"};
const Names afterFirst(months.begin() + 1, months.end());
const Names beforeLast(months.begin(), months.end() - 1);
const Names products{"bicycle", "trailer"};
const Table demand{{180, 220, 410, 650, 720, 480}, {40, 60, 120, 200, 190, 110}};
const Table cost{{240, 240, 250, 255, 255, 250}, {130, 130, 130, 138, 138, 135}};  // euros to make one
const Numbers storing{4, 2.5};                                                     // euros a piece and month
const Numbers hoursEach{2.5, 1.5};
const Numbers hours{1150, 1100, 1250, 1250, 1200, 1250};  // at the normal wage
constexpr double overtimeHours = 260;                     // a month
constexpr double wage = 12;                               // what an hour of overtime costs more
const Numbers atFirst{60, 25};                            // in store
constexpr double room = 420;                              // pieces of both that fit in

struct Plan {
    Columns make;
    Columns store;
    Columns overtime;
};

// In store before, and made, less in store afterwards is what was sold.
void balanceStore(const Model& model, const Plan& plan) {
    const Rows balance(model, "balance", products, months);
    balance.exactly(demand);
    model.SetNZStair(balance, plan.make, 1);
    model.SetNZStair(balance, plan.store, -1);
    model.SetNZStair(balance.slice(all, afterFirst), plan.store.slice(all, beforeLast), 1);
    for (std::size_t i = 0; i < products.size(); ++i) {
        balance.exactly(demand[i][0] - atFirst[i], products[i], months[0]);
    }
}

Plan build(const Model& model) {
    Plan plan{Columns(model, "make", products, months), Columns(model, "store", products, months),
              Columns(model, "overtime", months)};
    plan.make.Cost() = cost;
    plan.overtime.UB() = overtimeHours;
    plan.overtime.Cost() = wage;
    balanceStore(model, plan);

    const Rows work(model, "hours", months);
    work.atMost(hours);
    model.SetNZStair(work, plan.overtime, -1);
    const Rows stored(model, "room", months);
    stored.atMost(room);
    for (std::size_t i = 0; i < products.size(); ++i) {
        plan.store.Cost(products[i]) = storing[i];
        model.SetNZStair(work, plan.make.slice(products[i]), hoursEach[i]);
        model.SetNZStair(stored, plan.store.slice(products[i]), 1);
    }
    return plan;
}

template <class... Index>
void showMonths(const char* first, const char* second, const Columns& columns, const Index&... index) {
    std::printf("%-9s%-7s", first, second);
    for (const std::string& month : months) {
        std::printf("%9.1f", columns.LPSol(index..., month).number());
    }
    std::printf("\n");
}

void produce() {
    const Model model;
    const Plan plan = build(model);
    const double spent = model.optimum();
    std::printf("%16s", "");
    for (const std::string& month : months) std::printf("%9s", month.c_str());
    std::printf("\n");
    for (const std::string& product : products) {
        showMonths(product.c_str(), "make", plan.make, product);
        showMonths(product.c_str(), "store", plan.store, product);
    }
    showMonths("overtime", "", plan.overtime);
    std::printf("half a year costs %.2f euros\n", spent);
}

}  // namespace

int main() { return exitCode(produce); }
