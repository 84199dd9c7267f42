#include "session.h"

#include <fmt/format.h>

#include <filesystem>
#include <set>
#include <utility>
#include <variant>

#include "console.h"
#include "solutionfile.h"
#include "solver.h"

namespace tarq::translator {

/// One pass through GLPK, with the texts that it reads.
struct Session::Stage {
    AssembledText model;
    AssembledText data;
    std::optional<Entry> solve;
    std::unique_ptr<Translation> translation;
};

namespace {

NameFiles nameFiles(const Options& options) {
    const std::string letters = options.valueOf("auxfiles");
    return {letters.find('r') != std::string::npos, letters.find('c') != std::string::npos};
}

}  // namespace

Session::Session(std::string folder) : folder_(std::move(folder)) {}

Session::~Session() = default;

void Session::add(StatementKind kind, const Statement& statement) {
    const bool ends = kind == StatementKind::Solve || kind == StatementKind::ModelPart;
    if (ends && isPending(StatementKind::Solve)) runStage(true);
    if (kind == StatementKind::ModelPart) {
        const std::string_view word = statement.firstWord();
        if (word == "minimize" || word == "maximize") objectives_.emplace(statement.nameBehindFirstWord());
    }
    entries_.push_back({kind, statement, nullptr});
    pendingKinds_.insert(kind);
}

void Session::addSolve(const Statement& statement, const Options& options) {
    add(StatementKind::Solve, statement);
    entries_.back().options = std::make_shared<const Options>(options);
}

void Session::reset() {
    if (pendingStart_ < entries_.size()) runStage(false);
    entries_.clear();
    pendingStart_ = 0;
    objectives_.clear();
    lastStage_.reset();
    lastSolution_ = {};
}

void Session::finishSolving() {
    if (isPending(StatementKind::Solve)) runStage(true);
}

void Session::finish(const std::string& stub, const Options& options) {
    if (pendingStart_ < entries_.size()) runStage(!stub.empty());
    if (stub.empty()) return;
    if (!lastStage_) throw Failure("there is no model to write a stub of");
    const NameFiles names = nameFiles(options);
    writeStub(problemOf(*lastStage_, names), stub, names);
}

void Session::runStage(bool isGenerated) {
    lastStage_.reset();
    std::unique_ptr<Stage> stage = assembleStage();
    const bool changesModel = isPending(StatementKind::ModelPart) || isPending(StatementKind::Data);
    if (changesModel) lastSolution_ = {};
    isGenerated = isGenerated || isPending(StatementKind::Display) || stage->solve;
    pendingStart_ = entries_.size();
    pendingKinds_.clear();

    stage->translation->read();
    if (!isGenerated) return;
    stage->translation->generate();
    if (stage->solve) solve(*stage);
    lastStage_ = std::move(stage);
}

std::unique_ptr<Session::Stage> Session::assembleStage() const {
    auto stage = std::unique_ptr<Stage>(
        new Stage{AssembledText(folder_ + "/model"), AssembledText(folder_ + "/data"), std::nullopt, nullptr});
    std::set<int> displayLines;
    for (std::size_t position = 0; position < entries_.size(); ++position) {
        const auto& [kind, statement, options] = entries_[position];
        const bool isOver = position < pendingStart_;
        if (kind == StatementKind::Data) {
            stage->data.add(statement);
        } else if (kind == StatementKind::Display) {
            if (!isOver) displayLines.insert(stage->model.add(statement));
        } else if (kind != StatementKind::Solve || !isOver) {
            stage->model.add(statement);
            if (kind == StatementKind::Solve) stage->solve = entries_[position];
        }
    }
    stage->translation = std::make_unique<Translation>(stage->model, stage->data, std::move(displayLines));
    return stage;
}

LinearProblem Session::problemOf(const Stage& stage, NameFiles names) const {
    LinearProblem problem = stage.translation->problem(objectives_, names.rows || names.columns);
    // The format knows no problem without columns.
    if (problem.columns.empty()) throw Failure("the model has no variable that a constraint or the objective uses");
    return problem;
}

void Session::solve(Stage& stage) {
    const LinearProblem problem = problemOf(stage, nameFiles(*stage.solve->options));
    if (auto solution = askSolver(problem, *stage.solve)) lastSolution_ = std::move(*solution);
    if (lastSolution_.columns.size() > problem.columns.size() || lastSolution_.duals.size() > problem.rows.size()) {
        lastSolution_ = {};
    }
    stage.translation->showSolution(problem, lastSolution_, folder_);
}

std::optional<Solution> Session::askSolver(const LinearProblem& problem, const Entry& command) const {
    const std::string name = command.options->valueOf("solver");
    const auto complain = [&](std::string_view words) {
        const Place place = command.statement.place();
        showLine(fmt::format("{}:{}: solve failed: {}", place.file, place.line, words));
        return std::nullopt;
    };
    const auto program = findSolver(name);
    if (!program) return complain(fmt::format("there is no program '{}'", name));

    // A folder for each, so that nothing that an earlier solver left behind can be taken for the answer.
    const std::string folder = folder_ + "/solve";
    std::error_code stays;
    std::filesystem::create_directory(folder, stays);
    writeStub(problem, folder + "/stub", nameFiles(*command.options));
    const std::string ending = runSolver(*program, folder + "/stub", *command.options);
    auto answer = readSolution(folder + "/stub.sol", problem.columns.size(), problem.rows.size());
    std::filesystem::remove_all(folder, stays);

    if (auto* solution = std::get_if<Solution>(&answer)) {
        if (!solution->message.empty()) showLine(solution->message);
        return std::move(*solution);
    }
    const std::string& reason = std::get<std::string>(answer);
    return complain(ending.empty() ? fmt::format("'{}': {}", name, reason)
                                   : fmt::format("'{}' {}; {}", name, ending, reason));
}

}  // namespace tarq::translator
