#include "languages/amplstub.h"

#include <cstddef>
#include <vector>

#include "languages/amplfailures.h"
#include "languages/stubmodel.h"
#include "languages/stubprotocol.h"
#include "platform/childprocess.h"
#include "platform/programsearch.h"

namespace tarq {
namespace {

ByteSource outputOf(ChildProcess& program) {
    return [&program](char* buffer, std::size_t length) {
        std::size_t count = 0;
        return program.read(buffer, length, count) == ChildProcess::Read::Bytes ? count : 0;
    };
}

/// A state as AMPL numbers it.
std::int32_t amplState(TARQColRowStatusType state) {
    switch (state) {
        case TARQColRowStatusType::StatusBasic:
            return 1;
        case TARQColRowStatusType::StatusSuperBasic:
            return 2;
        case TARQColRowStatusType::StatusLB:
            return 3;
        case TARQColRowStatusType::StatusUB:
            return 4;
        case TARQColRowStatusType::StatusFixed:
            return 5;
        case TARQColRowStatusType::UndefinedVarStatus:
            break;
    }
    return 0;
}

/// Gathers words and hands them to a program.
class Words {
public:
    void integer(std::size_t value) { add(static_cast<std::int32_t>(value)); }
    void integer(std::int32_t value) { add(value); }
    void text(std::string_view value) {
        integer(value.size());
        bytes_ += value;
    }
    void reals(std::span<const double> values) {
        integer(values.size());
        bytes_.append(reinterpret_cast<const char*>(values.data()), values.size_bytes());
    }
    void states(std::span<const TARQColRowStatusType> values) {
        integer(values.size());
        for (const TARQColRowStatusType value : values) add(amplState(value));
    }
    [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
    void add(std::int32_t value) { bytes_.append(reinterpret_cast<const char*>(&value), sizeof value); }

    std::string bytes_;
};

std::string wordsOf(const AmplSolution& solution) {
    Words words;
    words.integer(solution.solveResult);
    words.integer(solution.columnCount);
    words.integer(solution.rowCount);
    words.text(solution.message);
    words.reals(solution.values);
    words.reals(solution.duals);
    words.states(solution.columnStates);
    words.states(solution.rowStates);
    return words.bytes();
}

struct ResultRule {
    TARQSolverStatusTyp firstSolver;
    TARQSolverStatusTyp lastSolver;
    TARQSolutionStatusTyp firstSolution;
    TARQSolutionStatusTyp lastSolution;
    std::int32_t code;
};

using enum TARQSolverStatusTyp;
using enum TARQSolutionStatusTyp;

constexpr auto anyRun = UndefinedSolverStatus;
constexpr auto anySolution = UndefinedSolutionStatus;
constexpr auto lastRun = IPxfrndsReached;
constexpr auto lastSolution = IPNoSolution;

// Of the rules that apply the last one counts.
constexpr ResultRule resultRules[] = {
    {anyRun, lastRun, UndefinedSolutionStatus, UndefinedSolutionStatus, -1},
    {LPFinished, LPFinished, LPOptimalSolution, LPOptimalSolution, 0},
    {IPFinished, IPFinished, IPOptimalSolution, IPOptimalSolution, 1},
    {anyRun, lastRun, LPOnlyPrimalFeasible, LPOnlyDualFeasible, 100},
    {anyRun, lastRun, IPSubOptimalSolution, IPSubOptimalSolution, 101},
    {anyRun, lastRun, LPInfeasible, LPInfeasible, 200},
    {anyRun, lastRun, IPNoSolution, IPNoSolution, 201},
    {anyRun, lastRun, LPUnbounded, LPUnbounded, 300},
    {LPxmiterReached, LPOtherResourceLimitReached, anySolution, lastSolution, 400},
    {IPxmxnodReached, IPOtherResourceLimitReached, anySolution, lastSolution, 401},
    {LPxfriteReached, LPxfriteReached, anySolution, lastSolution, 410},
    {IPxfrndsReached, IPxfrndsReached, anySolution, lastSolution, 411},
    {LPInputError, LPGeneralError, anySolution, lastSolution, 500},
    {IPInputError, IPGeneralError, anySolution, lastSolution, 501},
};

}  // namespace

Outcome readAmplStub(const std::string& stubName, ModelTarget& target) {
    ChildProcess program(findOwnProgram(stub::programName), {"read", stubName}, ChildProcess::Input::None,
                         ChildProcess::Errors::Dropped);
    if (program.start() != ChildProcess::Start::Done) return ampl::ioError();
    return receiveStubModel(outputOf(program), target);
}

Outcome writeAmplSolution(const std::string& stubName, const AmplSolution& solution) {
    ChildProcess program(findOwnProgram(stub::programName), {"write", stubName}, ChildProcess::Input::Written,
                         ChildProcess::Errors::Dropped);
    if (program.start() != ChildProcess::Start::Done || !program.write(wordsOf(solution))) return ampl::ioError();
    program.closeInput();
    StubAnswer answer(outputOf(program));
    std::int32_t end = 0;
    return answer.integer(end) && end == stub::farewell ? Outcome() : ampl::ioError();
}

std::int32_t amplSolveResult(TARQSolverStatusTyp solver, TARQSolutionStatusTyp solution) {
    std::int32_t code = -1;
    for (const ResultRule& rule : resultRules) {
        const bool applies = solver >= rule.firstSolver && solver <= rule.lastSolver &&
                             solution >= rule.firstSolution && solution <= rule.lastSolution;
        if (applies) code = rule.code;
    }
    return code;
}

Outcome writeAmplActivities(const std::string& stubName, const ModelStore& store, TARQSolverStatusTyp solver,
                            TARQSolutionStatusTyp solution) {
    const bool hasLpValues = solver < IPFinished;
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(store.columnCount()));
    for (std::int32_t j = 0; j < store.columnCount(); ++j) {
        values.push_back(hasLpValues ? store.column(j).lpValue : store.column(j).ipValue);
    }
    std::vector<double> activities;
    activities.reserve(static_cast<std::size_t>(store.rowCount()));
    for (std::int32_t i = 0; i < store.rowCount(); ++i) {
        activities.push_back(hasLpValues ? store.row(i).lpValue : store.row(i).ipValue);
    }
    return writeAmplSolution(stubName, {.solveResult = amplSolveResult(solver, solution),
                                        .columnCount = store.columnCount(),
                                        .rowCount = store.rowCount(),
                                        .values = values,
                                        .duals = activities});
}

}  // namespace tarq
