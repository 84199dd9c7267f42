// EngineLibrary: an engine whose operations are exported by a shared library.
//
// Binding tests nothing: a library may lack any of the operations. Calling one that is missing is harmless and gives a
// failure, TarqInputError for PutModel and TarqGeneralError for all others, so that a run on such a library ends with a
// failure. A missing solution operation delivers nothing, so the solution's status stays undefined. An operation that
// throws answers as if it were missing, so that the run still ends in order.
#pragma once

#include <string_view>

#include "engine/engineinterface.h"
#include "platform/dynamiclibrary.h"
#include "platform/slottable.h"

namespace tarq {

/// What stands for a call of an operation that a library lacks.
consteval std::int32_t resultWhenMissing(std::string_view operation) {
    return operation == "PutModel" ? TarqInputError : TarqGeneralError;
}

class EngineLibrary : public EngineInterface {
public:
    /// Takes over one load of `library` and gives it back at its own end, so that an engine in use is never unloaded.
    explicit EngineLibrary(DynamicLibrary library);
    ~EngineLibrary() override;

    [[nodiscard]] bool hasInitialize() const override { return slots_.slot<"Initialize">().function != nullptr; }
    [[nodiscard]] bool hasSetCallback() const override { return slots_.slot<"SetCallback">().function != nullptr; }
    [[nodiscard]] bool hasGetParameter() const override { return slots_.slot<"GetParameter">().function != nullptr; }
    [[nodiscard]] const void* code() const override;
    void abandonRun(std::int32_t thread) override { slots_.slot<"AbandonRun">()(thread); }

    std::int32_t FreeMemory() override { return slots_.slot<"FreeMemory">()(); }
    std::int32_t Initialize() override { return slots_.slot<"Initialize">()(); }
    std::int32_t AllocateMemory(std::int32_t megabytes) override { return slots_.slot<"AllocateMemory">()(megabytes); }
    std::int32_t GetMaxDim(std::int32_t* rows, std::int32_t* columns, std::int32_t* nonzeros) override {
        return slots_.slot<"GetMaxDim">()(rows, columns, nonzeros);
    }
    std::int32_t SetMaxLPDim(std::int32_t rows, std::int32_t columns, std::int32_t nonzeros) override {
        return slots_.slot<"SetMaxLPDim">()(rows, columns, nonzeros, 0, 0, 0, 0, 0);
    }
    std::int32_t InitModel() override { return slots_.slot<"InitModel">()(); }
    std::int32_t SetParameter(const char* assignment) override { return slots_.slot<"SetParameter">()(assignment); }
    std::int32_t GetParameter(const char* name, char* buffer) override {
        return slots_.slot<"GetParameter">()(name, buffer);
    }
    std::int32_t SetCallback(TarqCallback callback, std::int32_t flag) override {
        return slots_.slot<"SetCallback">()(callback, flag);
    }
    std::int32_t PutModel(std::int32_t zero, double infinity, std::int32_t rows, std::int32_t columns,
                          std::int32_t nonzeros, const std::int32_t* rowIndices, const std::int32_t* columnIndices,
                          const double* values, const double* lower, const double* upper, const double* cost,
                          const std::int32_t* type) override {
        return slots_.slot<"PutModel">()(zero, infinity, rows, columns, nonzeros, rowIndices, columnIndices, values,
                                         lower, upper, cost, type);
    }
    std::int32_t OptimizeLP(std::int32_t iterationFrequency, std::int32_t* iterations, std::int32_t* infeasibilities,
                            std::int32_t* lpStatus, double* objective, double* sumOfInfeasibilities) override {
        return slots_.slot<"OptimizeLP">()(iterationFrequency, iterations, infeasibilities, lpStatus, objective,
                                           sumOfInfeasibilities);
    }
    std::int32_t OptimizeIP(std::int32_t nodeFrequency, std::int32_t* nodes, std::int32_t* integerSolutions,
                            std::int32_t* stopReason, double* objective, double* bestPossible) override {
        return slots_.slot<"OptimizeIP">()(nodeFrequency, nodes, integerSolutions, stopReason, objective, bestPossible);
    }
    std::int32_t GetLPSolution(std::int32_t* status, double* objective, double* values, double* reducedCosts,
                               std::int32_t* basisStatus) override {
        return slots_.slot<"GetLPSolution">()(status, objective, values, reducedCosts, basisStatus);
    }
    std::int32_t GetIPSolution(std::int32_t* status, double* objective, double* values, double* reducedCosts,
                               std::int32_t* basisStatus) override {
        return slots_.slot<"GetIPSolution">()(status, objective, values, reducedCosts, basisStatus);
    }

private:
// Each row of the published lists becomes a slot; the last one ends the template's arguments.
#define TARQ_ENGINE_SLOT(operation) Slot<#operation, decltype(::operation), resultWhenMissing(#operation)>
#define TARQ_ENGINE_SLOT_AND_COMMA(operation) TARQ_ENGINE_SLOT(operation),
    using Slots =
        SlotTable<TARQ_ENGINE_OPERATIONS(TARQ_ENGINE_SLOT_AND_COMMA) TARQ_ENGINE_EXTENSIONS(TARQ_ENGINE_SLOT)>;
#undef TARQ_ENGINE_SLOT_AND_COMMA
#undef TARQ_ENGINE_SLOT
    static_assert(Slots::count == 19 + 1);

    DynamicLibrary library_;
    Slots slots_;
};

}  // namespace tarq
