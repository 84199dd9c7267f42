#include "engine/enginelibrary.h"

namespace tarq {

EngineLibrary::EngineLibrary(DynamicLibrary library) : library_(library) {
    slots_.bind(library_);
    extensions_.bind(library_);
}

EngineLibrary::~EngineLibrary() {
    // A refused unload leaves the library in memory, where it does no harm.
    static_cast<void>(library_.release());
}

bool EngineLibrary::hasInitialize() const { return slots_.slot<"Initialize">().function != nullptr; }

bool EngineLibrary::hasSetCallback() const { return slots_.slot<"SetCallback">().function != nullptr; }

bool EngineLibrary::hasGetParameter() const { return slots_.slot<"GetParameter">().function != nullptr; }

const void* EngineLibrary::code() const { return reinterpret_cast<const void*>(slots_.slot<"OptimizeLP">().function); }

void EngineLibrary::abandonRun(std::int32_t thread) { (void)extensions_.slot<"AbandonRun">()(thread); }

std::int32_t EngineLibrary::FreeMemory() { return slots_.slot<"FreeMemory">()(); }

std::int32_t EngineLibrary::Initialize() { return slots_.slot<"Initialize">()(); }

std::int32_t EngineLibrary::AllocateMemory(std::int32_t megabytes) {
    return slots_.slot<"AllocateMemory">()(megabytes);
}

std::int32_t EngineLibrary::GetMaxDim(std::int32_t* rows, std::int32_t* columns, std::int32_t* nonzeros) {
    return slots_.slot<"GetMaxDim">()(rows, columns, nonzeros);
}

std::int32_t EngineLibrary::SetMaxLPDim(std::int32_t rows, std::int32_t columns, std::int32_t nonzeros) {
    return slots_.slot<"SetMaxLPDim">()(rows, columns, nonzeros, 0, 0, 0, 0, 0);
}

std::int32_t EngineLibrary::InitModel() { return slots_.slot<"InitModel">()(); }

std::int32_t EngineLibrary::SetParameter(const char* assignment) { return slots_.slot<"SetParameter">()(assignment); }

std::int32_t EngineLibrary::GetParameter(const char* name, char* buffer) {
    return slots_.slot<"GetParameter">()(name, buffer);
}

std::int32_t EngineLibrary::SetCallback(TarqCallback callback, std::int32_t flag) {
    return slots_.slot<"SetCallback">()(callback, flag);
}

std::int32_t EngineLibrary::PutModel(std::int32_t zero, double infinity, std::int32_t rows, std::int32_t columns,
                                     std::int32_t nonzeros, const std::int32_t* rowIndices,
                                     const std::int32_t* columnIndices, const double* values, const double* lower,
                                     const double* upper, const double* cost, const std::int32_t* type) {
    return slots_.slot<"PutModel">()(zero, infinity, rows, columns, nonzeros, rowIndices, columnIndices, values, lower,
                                     upper, cost, type);
}

std::int32_t EngineLibrary::OptimizeLP(std::int32_t iterationFrequency, std::int32_t* iterations,
                                       std::int32_t* infeasibilities, std::int32_t* lpStatus, double* objective,
                                       double* sumOfInfeasibilities) {
    return slots_.slot<"OptimizeLP">()(iterationFrequency, iterations, infeasibilities, lpStatus, objective,
                                       sumOfInfeasibilities);
}

std::int32_t EngineLibrary::OptimizeIP(std::int32_t nodeFrequency, std::int32_t* nodes, std::int32_t* integerSolutions,
                                       std::int32_t* stopReason, double* objective, double* bestPossible) {
    return slots_.slot<"OptimizeIP">()(nodeFrequency, nodes, integerSolutions, stopReason, objective, bestPossible);
}

std::int32_t EngineLibrary::GetLPSolution(std::int32_t* status, double* objective, double* values, double* reducedCosts,
                                          std::int32_t* basisStatus) {
    return slots_.slot<"GetLPSolution">()(status, objective, values, reducedCosts, basisStatus);
}

std::int32_t EngineLibrary::GetIPSolution(std::int32_t* status, double* objective, double* values, double* reducedCosts,
                                          std::int32_t* basisStatus) {
    return slots_.slot<"GetIPSolution">()(status, objective, values, reducedCosts, basisStatus);
}

}  // namespace tarq
