// The C border: each operation forwards to the run of the calling thread, and no exception leaves it.

#include "tarq/engine.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

#include "enginerun.h"
#include "platform/exceptionbarrier.h"
#include "runoperations.h"

namespace {

using tarq::Thrown;
using tarq::engine::ownRun;
using tarq::engine::RunOperations;
using tarq::engine::Stage;

// What an operation throws becomes a result, and the message of the run, if there is one.
template <typename Operation>
std::int32_t guarded(std::int32_t memoryResult, Operation operation) {
    return tarq::withoutException(operation, [&](const Thrown& thrown) -> std::int32_t {
        const std::int32_t result = thrown.outOfMemory ? memoryResult : TarqInternalError;
        const char* const text = thrown.outOfMemory     ? tarq::engine::outOfMemoryText
                                 : *thrown.text != '\0' ? thrown.text
                                                        : "The engine failed for an unknown reason.";
        const auto noted = [&] { return ownRun() ? ownRun()->fail(result, text) : result; };
        return tarq::withoutException(noted, [&] { return result; });
    });
}

// An operation on the run of the calling thread; refused where it has none.
template <typename Operation>
std::int32_t inRun(Operation operation, std::int32_t memoryResult = TarqGeneralError) {
    RunOperations* const run = ownRun();
    if (!run) return TarqGeneralError;
    return guarded(memoryResult, [&]() -> std::int32_t { return operation(*run); });
}

// Both forms of the start. An exported operation is not called from here: the host may have one of the same name.
std::int32_t startRun() {
    return guarded(TarqGeneralError,
                   []() -> std::int32_t { return tarq::engine::beginRun() ? TarqSuccess : TarqGeneralError; });
}

std::int32_t parameterText(const char* name, char* buffer) {
    if (!name || !buffer) return TarqInputError;
    const std::string lower = tarq::engine::lowerCase(name);
    std::optional<std::string> text;
    if (lower == "xversn") {
        text = std::string("HiGHS ") + highsVersion();
    } else if (const RunOperations* const run = ownRun()) {
        text = run->parameter(lower);
    } else {
        return TarqGeneralError;
    }
    if (!text) return TarqInputError;
    const std::size_t room = lower == "xertyp" ? TarqLimitTextSize : TarqTextSize;
    const std::size_t length = std::min(text->size(), room - 1);
    std::memcpy(buffer, text->data(), length);
    buffer[length] = '\0';
    return TarqSuccess;
}

}  // namespace

int32_t FreeMemory(void) {
    return inRun([](RunOperations& run) {
        if (run.isAtWork()) return run.failAtWork();
        tarq::engine::endRun();
        return std::int32_t{TarqSuccess};
    });
}

int32_t Initialize(void) { return startRun(); }

int32_t AllocateMemory(int32_t megabytes) { return megabytes < 0 ? TarqInputError : startRun(); }

int32_t AbandonRun(int32_t thread) { return tarq::engine::abandonRun(thread) ? TarqSuccess : TarqGeneralError; }

int32_t GetMaxDim(int32_t* rows, int32_t* columns, int32_t* nonzeros) {
    return inRun([&](RunOperations& run) {
        if (!rows || !columns || !nonzeros) return run.fail(TarqInputError, "GetMaxDim needs all outputs.");
        *rows = *columns = *nonzeros = std::numeric_limits<std::int32_t>::max();
        return std::int32_t{TarqSuccess};
    });
}

int32_t SetMaxLPDim(int32_t rows, int32_t columns, int32_t nonzeros, int32_t /*reserved1*/, int32_t /*reserved2*/,
                    int32_t /*reserved3*/, int32_t /*reserved4*/, int32_t /*reserved5*/) {
    return inRun([&](RunOperations& run) {
        const bool negative = rows < 0 || columns < 0 || nonzeros < 0;
        return negative ? run.fail(TarqInputError, "A dimension is negative.") : TarqSuccess;
    });
}

int32_t InitModel(void) {
    return inRun([](RunOperations& run) { return run.start(); });
}

int32_t SetParameter(const char* assignment) {
    return inRun([&](RunOperations& run) {
        if (!assignment) return run.fail(TarqInputError, "SetParameter was given no text.");
        return run.setParameter(assignment);
    });
}

int32_t GetParameter(const char* name, char* buffer) {
    return guarded(TarqGeneralError, [&] { return parameterText(name, buffer); });
}

int32_t SetCallback(TarqCallback callback, int32_t /*flag*/) {
    return inRun([&](RunOperations& run) {
        run.setCallback(callback);
        return TarqSuccess;
    });
}

int32_t PutModel(int32_t /*zero*/, double infinity, int32_t rows, int32_t columns, int32_t nonzeros,
                 const int32_t* rowIndices, const int32_t* columnIndices, const double* values, const double* lower,
                 const double* upper, const double* cost, const int32_t* type) {
    const tarq::engine::ModelArrays arrays{infinity, rows,  columns, nonzeros, rowIndices, columnIndices,
                                           values,   lower, upper,   cost,     type};
    return inRun([&](RunOperations& run) { return run.putModel(arrays); }, TarqOutOfMemory);
}

int32_t OptimizeLP(int32_t iterationFrequency, int32_t* iterations, int32_t* infeasibilities, int32_t* lpStatus,
                   double* objective, double* sumOfInfeasibilities) {
    return inRun([&](RunOperations& run) {
        return run.optimizeLp(iterationFrequency,
                              {iterations, infeasibilities, lpStatus, objective, sumOfInfeasibilities});
    });
}

int32_t GetLPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    return inRun([&](RunOperations& run) {
        return run.solution(Stage::Lp, {status, objective, values, reducedCosts, basisStatus});
    });
}

int32_t OptimizeIP(int32_t nodeFrequency, int32_t* nodes, int32_t* integerSolutions, int32_t* stopReason,
                   double* objective, double* bestPossible) {
    return inRun([&](RunOperations& run) {
        return run.optimizeIp(nodeFrequency, {nodes, integerSolutions, stopReason, objective, bestPossible});
    });
}

int32_t GetIPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    return inRun([&](RunOperations& run) {
        return run.solution(Stage::Ip, {status, objective, values, reducedCosts, basisStatus});
    });
}

// Part of the interface, but without a use: these refuse.
int32_t Break(void) { return TarqGeneralError; }
int32_t GetDim(void) { return TarqGeneralError; }
int32_t NewModel(void) { return TarqGeneralError; }
int32_t Optimize(void) { return TarqGeneralError; }
int32_t SetMaxIPDim(void) { return TarqGeneralError; }
