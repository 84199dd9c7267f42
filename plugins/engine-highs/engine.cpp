// The C border: each operation forwards to the one EngineState of the library, and no exception leaves it.

#include "tarq/engine.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <limits>
#include <new>

#if defined(__GLIBCXX__)
#include <cxxabi.h>
#endif

#include "enginestate.h"

namespace {

using tarq::engine::EngineState;

// Never destroyed: a stage that was given up may outlive the static objects of the process.
EngineState& state() {
    static EngineState* const engine = new EngineState;
    return *engine;
}

template <typename Operation>
std::int32_t guarded(std::int32_t memoryResult, Operation operation) {
    const auto failed = [](std::int32_t result, const char* text) {
        try {
            return state().fail(result, text);
        } catch (...) {
            return result;
        }
    };
    try {
        return operation(state());
    }
#if defined(__GLIBCXX__)
    catch (const abi::__forced_unwind&) {
        throw;  // the thread is being cancelled, which mustn't be held up
    }
#endif
    catch (const std::bad_alloc&) {
        return failed(memoryResult, "Not enough memory.");
    } catch (const std::exception& exception) {
        return failed(tarq::engine::internalError, exception.what());
    } catch (...) {
        return failed(tarq::engine::internalError, "The engine failed for an unknown reason.");
    }
}

template <typename Operation>
std::int32_t guarded(Operation operation) {
    return guarded(tarq::engine::generalError, operation);
}

constexpr std::size_t textLength = 255;
constexpr std::size_t shortTextLength = 20;  // what a client keeps for xertyp

}  // namespace

int32_t FreeMemory(void) {
    return guarded([](EngineState& engine) { return engine.release(); });
}

int32_t Initialize(void) {
    return guarded([](EngineState& engine) { return engine.start(); });
}

int32_t AllocateMemory(int32_t megabytes) {
    return guarded([&](EngineState& engine) {
        if (megabytes < 0) return engine.fail(tarq::engine::inputError, "The amount of memory is negative.");
        return engine.start();
    });
}

int32_t GetMaxDim(int32_t* rows, int32_t* columns, int32_t* nonzeros) {
    return guarded([&](EngineState& engine) {
        if (!rows || !columns || !nonzeros)
            return engine.fail(tarq::engine::inputError, "GetMaxDim needs all outputs.");
        *rows = *columns = *nonzeros = std::numeric_limits<std::int32_t>::max();
        return tarq::engine::success;
    });
}

int32_t SetMaxLPDim(int32_t rows, int32_t columns, int32_t nonzeros, int32_t /*reserved1*/, int32_t /*reserved2*/,
                    int32_t /*reserved3*/, int32_t /*reserved4*/, int32_t /*reserved5*/) {
    return guarded([&](EngineState& engine) {
        if (rows >= 0 && columns >= 0 && nonzeros >= 0) return tarq::engine::success;
        return engine.fail(tarq::engine::inputError, "A dimension is negative.");
    });
}

int32_t InitModel(void) {
    return guarded([](EngineState& engine) { return engine.start(); });
}

int32_t SetParameter(const char* assignment) {
    return guarded([&](EngineState& engine) {
        if (!assignment) return engine.fail(tarq::engine::inputError, "SetParameter was given no text.");
        return engine.setParameter(assignment);
    });
}

int32_t GetParameter(const char* name, char* buffer) {
    return guarded([&](EngineState& engine) {
        if (!name || !buffer) return tarq::engine::inputError;
        const auto text = engine.parameter(name);
        if (!text) return tarq::engine::inputError;
        const std::size_t room = tarq::engine::lowerCase(name) == "xertyp" ? shortTextLength : textLength;
        const std::size_t length = std::min(text->size(), room - 1);
        std::memcpy(buffer, text->data(), length);
        buffer[length] = '\0';
        return tarq::engine::success;
    });
}

int32_t SetCallback(TarqCallback callback, int32_t /*flag*/) {
    return guarded([&](EngineState& engine) {
        engine.setCallback(callback);
        return tarq::engine::success;
    });
}

int32_t PutModel(int32_t /*zero*/, double infinity, int32_t rows, int32_t columns, int32_t nonzeros,
                 const int32_t* rowIndices, const int32_t* columnIndices, const double* values, const double* lower,
                 const double* upper, const double* cost, const int32_t* type) {
    return guarded(tarq::engine::outOfMemory, [&](EngineState& engine) {
        return engine.putModel(
            {infinity, rows, columns, nonzeros, rowIndices, columnIndices, values, lower, upper, cost, type});
    });
}

int32_t OptimizeLP(int32_t iterationFrequency, int32_t* iterations, int32_t* infeasibilities, int32_t* lpStatus,
                   double* objective, double* sumOfInfeasibilities) {
    return guarded([&](EngineState& engine) {
        return engine.optimizeLp(iterationFrequency,
                                 {iterations, infeasibilities, lpStatus, objective, sumOfInfeasibilities});
    });
}

int32_t GetLPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    return guarded([&](EngineState& engine) {
        return engine.lpSolution({status, objective, values, reducedCosts, basisStatus});
    });
}

int32_t OptimizeIP(int32_t nodeFrequency, int32_t* nodes, int32_t* integerSolutions, int32_t* stopReason,
                   double* objective, double* bestPossible) {
    return guarded([&](EngineState& engine) {
        return engine.optimizeIp(nodeFrequency, {nodes, integerSolutions, stopReason, objective, bestPossible});
    });
}

int32_t GetIPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    return guarded([&](EngineState& engine) {
        return engine.ipSolution({status, objective, values, reducedCosts, basisStatus});
    });
}

// Part of the interface, but without a use: these refuse.
int32_t Break(void) { return tarq::engine::generalError; }
int32_t GetDim(void) { return tarq::engine::generalError; }
int32_t NewModel(void) { return tarq::engine::generalError; }
int32_t Optimize(void) { return tarq::engine::generalError; }
int32_t SetMaxIPDim(void) { return tarq::engine::generalError; }
