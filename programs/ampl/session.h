// Session: the model as its statements have made it so far, and what is done with it.
//
// GLPK translates a whole text with at most one `solve` in it, and can't go back. So statements are gathered into a
// stage, which is run when the next statement can't join it: at a second `solve`, at a column or row declared behind a
// `solve`, at a `reset` and at the end. A later stage translates the declarations and data of all stages before it
// anew, but not their displays.
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "options.h"
#include "statementreader.h"
#include "stubfiles.h"
#include "translation.h"

namespace tarq::translator {

enum class StatementKind {
    Declaration,  ///< of a set or parameter, and checks
    ModelPart,    ///< a family of columns or rows, or an objective
    Data,
    Display,  ///< display or printf
    Solve,    ///< only by addSolve
};

/// All operations throw a Failure for what is wrong in the statements.
class Session {
public:
    /// `folder` takes temporary files.
    explicit Session(std::string folder);
    ~Session();

    void add(StatementKind kind, const Statement& statement);
    /// The options are those for the solver, however late it runs.
    void addSolve(const Statement& statement, const Options& options);
    /// Forgets the model.
    void reset();
    /// Runs what is left of a stage that solves; what else is left isn't run.
    void finishSolving();
    /// Runs what is left, and writes the stub of the model, with the files that the options ask for, unless `stub` is
    /// empty.
    void finish(const std::string& stub, const Options& options);

private:
    struct Entry {
        StatementKind kind;
        Statement statement;
        std::shared_ptr<const Options> options;  ///< of a solve
    };
    struct Stage;

    [[nodiscard]] bool isPending(StatementKind kind) const { return pendingKinds_.count(kind) == 1; }
    void runStage(bool isGenerated);
    [[nodiscard]] std::unique_ptr<Stage> assembleStage() const;
    void solve(Stage& stage);
    /// Nothing when the solver gave none, which has been said then.
    [[nodiscard]] std::optional<Solution> askSolver(const LinearProblem& problem, const Entry& command) const;
    [[nodiscard]] LinearProblem problemOf(const Stage& stage, NameFiles names) const;

    std::string folder_;
    std::vector<Entry> entries_;
    std::size_t pendingStart_ = 0;  ///< entries from here on are those of the stage that is gathered
    std::set<StatementKind> pendingKinds_;
    FamilyNames objectives_;
    std::unique_ptr<Stage> lastStage_;  ///< the stage that was run last, for the stub
    Solution lastSolution_;             ///< stays when a later solve of the same model fails
};

}  // namespace tarq::translator
