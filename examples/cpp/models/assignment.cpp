// Who does which job, so that all are done in the fewest hours: an assignment of people to jobs.
//
// The rows of people and those of jobs are families; Sum over a slice of the columns makes each row. The linear model
// suffices: its corners are whole.
#include "../program.h"

using namespace tarq::client;

namespace {

const Names jobs{"roof", "walls", "floor", "wiring", "pipes", "paint"};
const Names people{"Ada", "Ben", "Cem", "Dora", "Emil", "Fee"};
const Table hours{{13, 21, 20, 12, 8, 26},  {22, 26, 25, 16, 10, 23}, {36, 20, 17, 28, 24, 14},
                  {28, 33, 22, 25, 18, 31}, {15, 18, 27, 14, 9, 19},  {24, 19, 12, 23, 20, 11}};

Columns build(const Model& model) {
    Columns does(model, "does", people, jobs);
    does.Cost() = hours;
    does.UB() = 1;
    const Rows works(model, "works", people);
    const Rows done(model, "done", jobs);
    for (const std::string& person : people) works.row(person).sum(does.slice(person));
    for (const std::string& job : jobs) done.row(job).sum(does.slice(all, job));
    works.exactly(1);
    done.exactly(1);
    return does;
}

void assign() {
    const Model model;
    const Columns does = build(model);
    const double spent = model.optimum();
    for (const std::string& person : people) {
        for (const std::string& job : jobs) {
            if (does.LPSol(person, job).number() < 0.5) continue;
            std::printf("  %-5s %-7s %3g hours\n", person.c_str(), job.c_str(), does.Cost(person, job).number());
        }
    }
    std::printf("%g hours in all\n", spent);
}

}  // namespace

int main() { return exitCode(assign); }
