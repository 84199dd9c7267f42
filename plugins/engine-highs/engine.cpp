// The C border: each operation forwards to the run of the calling thread, and no exception leaves it.

#include "tarq/engine.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <limits>
#include <new>
#include <optional>
#include <string>

#include "enginerun.h"
#include "enginestate.h"

namespace {

using tarq::engine::EngineState;

// What `operation` throws becomes a result, and the message of the run, if there is one.
template <typename Operation>
std::int32_t guarded(std::int32_t memoryResult, Operation operation) {
    const auto failed = [](std::int32_t result, const char* text) {
        try {
            EngineState* const engine = tarq::engine::ownRun();
            return engine ? engine->fail(result, text) : result;
        } catch (...) {
            return result;
        }
    };
    try {
        return operation();
    } catch (const std::bad_alloc&) {
        return failed(memoryResult, "Not enough memory.");
    } catch (const std::exception& exception) {
        return failed(tarq::engine::internalError, exception.what());
    } catch (...) {
        // What is no exception is the end of the thread, which mustn't be held up.
        if (std::current_exception() == nullptr) throw;
        return failed(tarq::engine::internalError, "The engine failed for an unknown reason.");
    }
}

// An operation on the run of the calling thread; refused where it has none.
template <typename Operation>
std::int32_t inRun(std::int32_t memoryResult, Operation operation) {
    EngineState* const engine = tarq::engine::ownRun();
    if (!engine) return tarq::engine::generalError;
    return guarded(memoryResult, [&] { return operation(*engine); });
}

template <typename Operation>
std::int32_t inRun(Operation operation) {
    return inRun(tarq::engine::generalError, operation);
}

constexpr std::size_t textLength = 255;
constexpr std::size_t shortTextLength = 20;  // what a client keeps for xertyp

}  // namespace

int32_t FreeMemory(void) {
    return inRun([](EngineState& engine) {
        if (engine.isAtWork()) return engine.fail(tarq::engine::generalError, "The engine is at work.");
        tarq::engine::endRun();
        return tarq::engine::success;
    });
}

int32_t Initialize(void) {
    return guarded(tarq::engine::generalError,
                   [] { return tarq::engine::beginRun() ? tarq::engine::success : tarq::engine::generalError; });
}

int32_t AllocateMemory(int32_t megabytes) { return megabytes < 0 ? tarq::engine::inputError : Initialize(); }

int32_t AbandonRun(int32_t thread) {
    return tarq::engine::abandonRun(thread) ? tarq::engine::success : tarq::engine::generalError;
}

int32_t GetMaxDim(int32_t* rows, int32_t* columns, int32_t* nonzeros) {
    return inRun([&](EngineState& engine) {
        if (!rows || !columns || !nonzeros)
            return engine.fail(tarq::engine::inputError, "GetMaxDim needs all outputs.");
        *rows = *columns = *nonzeros = std::numeric_limits<std::int32_t>::max();
        return tarq::engine::success;
    });
}

int32_t SetMaxLPDim(int32_t rows, int32_t columns, int32_t nonzeros, int32_t /*reserved1*/, int32_t /*reserved2*/,
                    int32_t /*reserved3*/, int32_t /*reserved4*/, int32_t /*reserved5*/) {
    return inRun([&](EngineState& engine) {
        if (rows >= 0 && columns >= 0 && nonzeros >= 0) return tarq::engine::success;
        return engine.fail(tarq::engine::inputError, "A dimension is negative.");
    });
}

int32_t InitModel(void) {
    return inRun([](EngineState& engine) { return engine.start(); });
}

int32_t SetParameter(const char* assignment) {
    return inRun([&](EngineState& engine) {
        if (!assignment) return engine.fail(tarq::engine::inputError, "SetParameter was given no text.");
        return engine.setParameter(assignment);
    });
}

int32_t GetParameter(const char* name, char* buffer) {
    return guarded(tarq::engine::generalError, [&] {
        if (!name || !buffer) return tarq::engine::inputError;
        const std::string lower = tarq::engine::lowerCase(name);
        std::optional<std::string> text;
        if (lower == "xversn") {
            text = std::string("HiGHS ") + highsVersion();
        } else if (const EngineState* const engine = tarq::engine::ownRun()) {
            text = engine->parameter(lower);
        } else {
            return tarq::engine::generalError;
        }
        if (!text) return tarq::engine::inputError;
        const std::size_t length = std::min(text->size(), (lower == "xertyp" ? shortTextLength : textLength) - 1);
        std::memcpy(buffer, text->data(), length);
        buffer[length] = '\0';
        return tarq::engine::success;
    });
}

int32_t SetCallback(TarqCallback callback, int32_t /*flag*/) {
    return inRun([&](EngineState& engine) {
        engine.setCallback(callback);
        return tarq::engine::success;
    });
}

int32_t PutModel(int32_t /*zero*/, double infinity, int32_t rows, int32_t columns, int32_t nonzeros,
                 const int32_t* rowIndices, const int32_t* columnIndices, const double* values, const double* lower,
                 const double* upper, const double* cost, const int32_t* type) {
    return inRun(tarq::engine::outOfMemory, [&](EngineState& engine) {
        return engine.putModel(
            {infinity, rows, columns, nonzeros, rowIndices, columnIndices, values, lower, upper, cost, type});
    });
}

int32_t OptimizeLP(int32_t iterationFrequency, int32_t* iterations, int32_t* infeasibilities, int32_t* lpStatus,
                   double* objective, double* sumOfInfeasibilities) {
    return inRun([&](EngineState& engine) {
        return engine.optimizeLp(iterationFrequency,
                                 {iterations, infeasibilities, lpStatus, objective, sumOfInfeasibilities});
    });
}

int32_t GetLPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    return inRun([&](EngineState& engine) {
        return engine.lpSolution({status, objective, values, reducedCosts, basisStatus});
    });
}

int32_t OptimizeIP(int32_t nodeFrequency, int32_t* nodes, int32_t* integerSolutions, int32_t* stopReason,
                   double* objective, double* bestPossible) {
    return inRun([&](EngineState& engine) {
        return engine.optimizeIp(nodeFrequency, {nodes, integerSolutions, stopReason, objective, bestPossible});
    });
}

int32_t GetIPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    return inRun([&](EngineState& engine) {
        return engine.ipSolution({status, objective, values, reducedCosts, basisStatus});
    });
}

// Part of the interface, but without a use: these refuse.
int32_t Break(void) { return tarq::engine::generalError; }
int32_t GetDim(void) { return tarq::engine::generalError; }
int32_t NewModel(void) { return tarq::engine::generalError; }
int32_t Optimize(void) { return tarq::engine::generalError; }
int32_t SetMaxIPDim(void) { return tarq::engine::generalError; }
