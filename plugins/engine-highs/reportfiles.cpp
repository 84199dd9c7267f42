#include "reportfiles.h"

#include <fmt/format.h>

#include <array>
#include <cstdio>
#include <iterator>
#include <memory>

namespace tarq::engine {

namespace {

// By TarqBasisStatus.
constexpr std::array<const char*, TarqSuperbasic + 1> stateNames{"undefined", "basic", "lower",
                                                                 "upper",     "fixed", "superbasic"};

struct StatusName {
    std::int32_t status;
    const char* name;
};

constexpr std::array lpNames{
    StatusName{TarqLPSolutionOptimal, "optimal"}, StatusName{TarqLPSolutionInfeasible, "infeasible"},
    StatusName{TarqLPSolutionUnbounded, "unbounded"}, StatusName{TarqLPSolutionPrimalFeasible, "primal feasible"},
    StatusName{TarqLPSolutionDualFeasible, "dual feasible"}};
constexpr std::array ipNames{StatusName{TarqIPSolutionOptimal, "optimal"},
                             StatusName{TarqIPSolutionSuboptimal, "suboptimal"},
                             StatusName{TarqIPSolutionNone, "no solution"}};

template <typename Names>
const char* nameOf(const Names& names, std::int32_t status) {
    for (const StatusName& row : names) {
        if (row.status == status) return row.name;
    }
    return "not feasible";
}

const char* statusName(Stage stage, std::int32_t status) {
    return stage == Stage::Lp ? nameOf(lpNames, status) : nameOf(ipNames, status);
}

void appendSection(std::string& text, const char* title, const char* dual, const SolutionArrays& solution,
                   std::size_t first, std::size_t count) {
    auto out = std::back_inserter(text);
    fmt::format_to(out, "\n{}\n{:>10} {:>24} {:>24}  state\n", title, "number", "value", dual);
    for (std::size_t position = first; position < first + count; ++position) {
        const auto state = static_cast<std::size_t>(solution.states[position]);
        fmt::format_to(out, "{:>10} {:>24} {:>24}  {}\n", position - first + 1, solution.values[position],
                       solution.reducedCosts[position], state < stateNames.size() ? stateNames[state] : stateNames[0]);
    }
}

}  // namespace

std::string solutionReport(const ReportedModel& model, const StageOutcome& outcome, Stage stage, bool withRows) {
    std::string text =
        fmt::format("{} solution\nstatus     {}\nobjective  {}\ndirection  {}\ncolumns    {}\nrows       {}\n",
                    stage == Stage::Lp ? "LP" : "IP", statusName(stage, outcome.solutionStatus), outcome.objective,
                    model.maximize ? "max" : "min", model.columns, model.rows);
    const auto columns = static_cast<std::size_t>(model.columns);
    const auto rows = static_cast<std::size_t>(model.rows);
    if (outcome.solution.values.size() != columns + rows) return text;
    appendSection(text, "COLUMNS", "reduced cost", outcome.solution, 0, columns);
    if (withRows) appendSection(text, "ROWS", "dual", outcome.solution, columns, rows);
    return text;
}

std::string statisticsReport(const ReportedModel& model, const ResultValues& results, const StageOutcome& lp,
                             const StageOutcome* ip) {
    std::string text;
    auto out = std::back_inserter(text);
    fmt::format_to(out, "Model\n  rows               {}\n  columns            {}\n  nonzeros           {}\n",
                   model.rows, model.columns, model.nonzeros);
    fmt::format_to(out, "  integer columns    {}\n  direction          {}\n", model.integers,
                   model.maximize ? "max" : "min");
    fmt::format_to(out, "LP\n  result             {}\n  status             {}\n  objective          {}\n", lp.result,
                   nameOf(lpNames, lp.lpStatus != TarqLPSolvable ? lp.lpStatus : lp.solutionStatus), lp.objective);
    fmt::format_to(out, "  iterations         {}\n  seconds            {:.3f}\n", results.iterations,
                   results.lpSeconds);
    if (ip) {
        fmt::format_to(out, "IP\n  result             {}\n  status             {}\n  objective          {}\n",
                       ip->result, nameOf(ipNames, ip->solutionStatus), ip->objective);
        fmt::format_to(out, "  best possible      {}\n  nodes              {}\n  integer solutions  {}\n",
                       ip->bestPossible, results.nodes, results.integerSolutions);
        fmt::format_to(out, "  seconds            {:.3f}\n", results.ipSeconds);
    }
    fmt::format_to(out, "Run\n  seconds            {:.3f}\n", results.runSeconds);
    return text;
}

bool writeFile(const std::string& path, const std::string& content) {
    const auto close = [](std::FILE* file) { std::fclose(file); };
    std::unique_ptr<std::FILE, decltype(close)> file(std::fopen(path.c_str(), "w"), close);
    if (!file) return false;
    const bool written = std::fwrite(content.data(), 1, content.size(), file.get()) == content.size();
    return std::fclose(file.release()) == 0 && written;
}

}  // namespace tarq::engine
