// EngineLibrary: an engine whose operations are exported by a shared library.
//
// Binding tests nothing: a library may lack any of the operations. Calling one that is missing is harmless and gives a
// failure: non-zero for the operations of the start, "input error" for PutModel and "general error" for the stages, so
// that a run on such a library ends with a failure. A missing solution operation delivers nothing, so the solution's
// status stays undefined. An operation that throws answers as if it were missing, so that the run still ends in order.
#pragma once

#include "engine/engineinterface.h"
#include "platform/dynamiclibrary.h"
#include "platform/slottable.h"

namespace tarq {

class EngineLibrary : public EngineInterface {
public:
    /// Takes over one load of `library` and gives it back at its own end, so that an engine in use is never unloaded.
    explicit EngineLibrary(DynamicLibrary library);
    ~EngineLibrary() override;

    [[nodiscard]] bool hasInitialize() const override;
    [[nodiscard]] bool hasSetCallback() const override;
    [[nodiscard]] bool hasGetParameter() const override;
    [[nodiscard]] const void* code() const override;
    void abandonRun(std::int32_t thread) override;

    std::int32_t FreeMemory() override;
    std::int32_t Initialize() override;
    std::int32_t AllocateMemory(std::int32_t megabytes) override;
    std::int32_t GetMaxDim(std::int32_t* rows, std::int32_t* columns, std::int32_t* nonzeros) override;
    std::int32_t SetMaxLPDim(std::int32_t rows, std::int32_t columns, std::int32_t nonzeros) override;
    std::int32_t InitModel() override;
    std::int32_t SetParameter(const char* assignment) override;
    std::int32_t GetParameter(const char* name, char* buffer) override;
    std::int32_t SetCallback(TarqCallback callback, std::int32_t flag) override;
    std::int32_t PutModel(std::int32_t zero, double infinity, std::int32_t rows, std::int32_t columns,
                          std::int32_t nonzeros, const std::int32_t* rowIndices, const std::int32_t* columnIndices,
                          const double* values, const double* lower, const double* upper, const double* cost,
                          const std::int32_t* type) override;
    std::int32_t OptimizeLP(std::int32_t iterationFrequency, std::int32_t* iterations, std::int32_t* infeasibilities,
                            std::int32_t* lpStatus, double* objective, double* sumOfInfeasibilities) override;
    std::int32_t OptimizeIP(std::int32_t nodeFrequency, std::int32_t* nodes, std::int32_t* integerSolutions,
                            std::int32_t* stopReason, double* objective, double* bestPossible) override;
    std::int32_t GetLPSolution(std::int32_t* status, double* objective, double* values, double* reducedCosts,
                               std::int32_t* basisStatus) override;
    std::int32_t GetIPSolution(std::int32_t* status, double* objective, double* values, double* reducedCosts,
                               std::int32_t* basisStatus) override;

private:
    static constexpr std::int32_t failure = 1;
    static constexpr std::int32_t inputError = 2;
    static constexpr std::int32_t generalError = 5;

    using Slots = SlotTable<                                          //
        Slot<"AllocateMemory", decltype(::AllocateMemory), failure>,  //
        Slot<"Break", decltype(::Break), failure>,                    //
        Slot<"FreeMemory", decltype(::FreeMemory), failure>,          //
        Slot<"GetDim", decltype(::GetDim), failure>,                  //
        Slot<"GetIPSolution", decltype(::GetIPSolution), failure>,    //
        Slot<"GetLPSolution", decltype(::GetLPSolution), failure>,    //
        Slot<"GetMaxDim", decltype(::GetMaxDim), failure>,            //
        Slot<"GetParameter", decltype(::GetParameter), failure>,      //
        Slot<"Initialize", decltype(::Initialize), failure>,          //
        Slot<"InitModel", decltype(::InitModel), failure>,            //
        Slot<"NewModel", decltype(::NewModel), failure>,              //
        Slot<"Optimize", decltype(::Optimize), failure>,              //
        Slot<"OptimizeIP", decltype(::OptimizeIP), generalError>,     //
        Slot<"OptimizeLP", decltype(::OptimizeLP), generalError>,     //
        Slot<"PutModel", decltype(::PutModel), inputError>,           //
        Slot<"SetCallback", decltype(::SetCallback), failure>,        //
        Slot<"SetMaxIPDim", decltype(::SetMaxIPDim), failure>,        //
        Slot<"SetMaxLPDim", decltype(::SetMaxLPDim), failure>,        //
        Slot<"SetParameter", decltype(::SetParameter), failure>>;
    static_assert(Slots::count == 19);
    using Extensions = SlotTable<Slot<"AbandonRun", std::int32_t(std::int32_t), failure>>;

    DynamicLibrary library_;
    Slots slots_;
    Extensions extensions_;
};

}  // namespace tarq
