// EngineInterface: the operations of a solver engine that a run uses.
//
// The operations bear the names, arguments, results (a TarqResult) and values of the C interface in tarq/engine.h,
// which says what they mean; here stands what a run relies on. A stub or another solver derives from this class and is
// offered by an EngineBinding of its own. An engine holds one model and one set of parameters, so all operations of a
// run come from one thread; only GetParameter may come from another, for the version, and abandonRun. Nothing here
// throws.
#pragma once

#include <cstdint>

#include "tarq/engine.h"

namespace tarq {

class EngineInterface {
public:
    EngineInterface() = default;
    EngineInterface(const EngineInterface&) = delete;
    EngineInterface& operator=(const EngineInterface&) = delete;
    virtual ~EngineInterface() = default;

    /// What the engine offers of the optional operations. Without Initialize the older start is used (AllocateMemory,
    /// GetMaxDim, SetMaxLPDim, InitModel), without SetCallback a stage can't be stopped from outside, and without
    /// GetParameter there are no messages, no result values and no version.
    [[nodiscard]] virtual bool hasInitialize() const = 0;
    [[nodiscard]] virtual bool hasSetCallback() const = 0;
    [[nodiscard]] virtual bool hasGetParameter() const = 0;

    /// Whether the licence lets this run go on; asked once a run, right after the engine has taken its memory. There is
    /// no operation for it in the C interface, so an engine accepts unless it says otherwise.
    [[nodiscard]] virtual bool licenceAccepted() { return true; }

    /// An address in the engine's own code, null when it has none to tell apart.
    [[nodiscard]] virtual const void* code() const { return nullptr; }

    /// The thread of this number, which has begun a run, will never come back to end it: what it holds of the engine
    /// goes to the next run. From any thread. An engine without such a notion does nothing.
    virtual void abandonRun(std::int32_t /*thread*/) {}

    /// Releases all that the engine holds for the current run.
    virtual std::int32_t FreeMemory() = 0;

    virtual std::int32_t Initialize() = 0;
    virtual std::int32_t AllocateMemory(std::int32_t megabytes) = 0;
    virtual std::int32_t GetMaxDim(std::int32_t* rows, std::int32_t* columns, std::int32_t* nonzeros) = 0;
    /// Sets the maximal dimensions; the five reserved arguments of the C operation are passed as 0.
    virtual std::int32_t SetMaxLPDim(std::int32_t rows, std::int32_t columns, std::int32_t nonzeros) = 0;
    virtual std::int32_t InitModel() = 0;

    /// Takes "name=value", string values in single quotes. Nobody looks at the result.
    virtual std::int32_t SetParameter(const char* assignment) = 0;
    /// Asks the engine to end its stage at the next opportunity.
    void requestStop() { SetParameter("XCBSTP=1"); }
    /// Writes the value as text; `buffer` has room for TarqTextSize characters at least.
    virtual std::int32_t GetParameter(const char* name, char* buffer) = 0;
    /// flag: a TarqModelKind.
    virtual std::int32_t SetCallback(TarqCallback callback, std::int32_t flag) = 0;

    /// TarqOutOfMemory, TarqInputError, or any other result: accepted. The arrays live only for the call.
    virtual std::int32_t PutModel(std::int32_t zero, double infinity, std::int32_t rows, std::int32_t columns,
                                  std::int32_t nonzeros, const std::int32_t* rowIndices,
                                  const std::int32_t* columnIndices, const double* values, const double* lower,
                                  const double* upper, const double* cost, const std::int32_t* type) = 0;

    /// TarqSuccess: solved; TarqLimitReached and TarqStoppedAtBreak: ended early, with what there is; else failed. The
    /// outputs may change during the call.
    virtual std::int32_t OptimizeLP(std::int32_t iterationFrequency, std::int32_t* iterations,
                                    std::int32_t* infeasibilities, std::int32_t* lpStatus, double* objective,
                                    double* sumOfInfeasibilities) = 0;
    /// Results and outputs as of OptimizeLP.
    virtual std::int32_t OptimizeIP(std::int32_t nodeFrequency, std::int32_t* nodes, std::int32_t* integerSolutions,
                                    std::int32_t* stopReason, double* objective, double* bestPossible) = 0;

    /// Arrays of n + m entries, columns first. The outputs stay as they are when the engine delivers nothing.
    virtual std::int32_t GetLPSolution(std::int32_t* status, double* objective, double* values, double* reducedCosts,
                                       std::int32_t* basisStatus) = 0;
    virtual std::int32_t GetIPSolution(std::int32_t* status, double* objective, double* values, double* reducedCosts,
                                       std::int32_t* basisStatus) = 0;
};

}  // namespace tarq
