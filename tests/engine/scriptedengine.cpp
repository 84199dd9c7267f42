// A solver engine that computes nothing: it records each call and plays the results of its script. Operations are left
// out by definitions WITHOUT_<operation>.
#include "tests/engine/scriptedengine.h"

#include <cstring>
#include <sstream>
#include <string_view>

namespace {

EngineScript script;

class Call {
public:
    explicit Call(const char* name) : name_(name) { line_ << name; }

    template <class Value>
    Call& with(const Value& value) {
        line_ << ' ' << value;
        return *this;
    }
    template <class Value>
    Call& with(const Value* values, std::int32_t count) {
        line_ << " |";
        for (std::int32_t i = 0; i < count; ++i) line_ << ' ' << values[i];
        return *this;
    }
    std::int32_t result() {
        script.log += line_.str() + '\n';
        if (const auto hook = script.during.find(name_); hook != script.during.end()) hook->second();
        const auto found = script.results.find(name_);
        return found == script.results.end() ? 0 : found->second;
    }

private:
    const char* name_;
    std::ostringstream line_;
};

[[maybe_unused]] void writeSolution(double base, double* values, double* reducedCosts, std::int32_t* basisStatus) {
    for (std::int32_t k = 0; k < script.entries; ++k) {
        values[k] = base + k;
        reducedCosts[k] = base + 50 + k;
        basisStatus[k] = k % 5 + 1;
    }
}

}  // namespace

extern "C" TARQ_ENGINE_API EngineScript* engineScript();
EngineScript* engineScript() { return &script; }

#ifndef WITHOUT_ALL
int32_t FreeMemory() { return Call("FreeMemory").result(); }

#ifndef WITHOUT_Initialize
int32_t Initialize() { return Call("Initialize").result(); }
#endif

int32_t AllocateMemory(int32_t megabytes) { return Call("AllocateMemory").with(megabytes).result(); }

int32_t GetMaxDim(int32_t* rows, int32_t* columns, int32_t* nonzeros) {
    *rows = script.maximalRows;
    *columns = script.maximalColumns;
    *nonzeros = script.maximalNonzeros;
    return Call("GetMaxDim").result();
}

int32_t SetMaxLPDim(int32_t rows, int32_t columns, int32_t nonzeros, int32_t reserved1, int32_t reserved2,
                    int32_t reserved3, int32_t reserved4, int32_t reserved5) {
    return Call("SetMaxLPDim")
        .with(rows)
        .with(columns)
        .with(nonzeros)
        .with(reserved1 + reserved2 + reserved3 + reserved4 + reserved5)
        .result();
}

int32_t InitModel() { return Call("InitModel").result(); }

#ifndef WITHOUT_SetParameter
int32_t SetParameter(const char* assignment) { return Call("SetParameter").with(assignment).result(); }
#endif

#ifndef WITHOUT_GetParameter
int32_t GetParameter(const char* name, char* buffer) {
    const std::int32_t result = Call("GetParameter").with(name).result();
    const auto found = script.parameters.find(name);
    if (found == script.parameters.end()) {
        std::strcpy(buffer, "refused");
        return 1;
    }
    std::strcpy(buffer, found->second.c_str());
    return result;
}
#endif

#ifndef WITHOUT_SetCallback
int32_t SetCallback(TarqCallback callback, int32_t flag) {
    script.callback = callback;
    return Call("SetCallback").with(flag).result();
}
#endif

#ifndef WITHOUT_PutModel
int32_t PutModel(int32_t zero, double infinity, int32_t rows, int32_t columns, int32_t nonzeros,
                 const int32_t* rowIndices, const int32_t* columnIndices, const double* values, const double* lower,
                 const double* upper, const double* cost, const int32_t* type) {
    script.entries = rows + columns;
    return Call("PutModel")
        .with(zero)
        .with(infinity)
        .with(rows)
        .with(columns)
        .with(nonzeros)
        .with(rowIndices, nonzeros)
        .with(columnIndices, nonzeros)
        .with(values, nonzeros)
        .with(lower, script.entries)
        .with(upper, script.entries)
        .with(cost, columns)
        .with(type, columns)
        .result();
}
#endif

#ifndef WITHOUT_OptimizeLP
int32_t OptimizeLP(int32_t iterationFrequency, int32_t* iterations, int32_t* infeasibilities, int32_t* lpStatus,
                   double* objective, double* sumOfInfeasibilities) {
    *iterations = 11;
    *infeasibilities = 12;
    *lpStatus = script.lpStatus;
    *objective = 13.5;
    *sumOfInfeasibilities = 14.5;
    return Call("OptimizeLP").with(iterationFrequency).result();
}
#endif

#ifndef WITHOUT_GetLPSolution
int32_t GetLPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    *status = script.lpSolutionStatus;
    *objective = 15.5;
    writeSolution(script.lpBase, values, reducedCosts, basisStatus);
    return Call("GetLPSolution").result();
}
#endif

#ifndef WITHOUT_OptimizeIP
int32_t OptimizeIP(int32_t nodeFrequency, int32_t* nodes, int32_t* integerSolutions, int32_t* stopReason,
                   double* objective, double* bestPossible) {
    *nodes = 21;
    *integerSolutions = 22;
    *stopReason = script.stopReason;
    *objective = 23.5;
    *bestPossible = 24.5;
    return Call("OptimizeIP").with(nodeFrequency).result();
}
#endif

#ifndef WITHOUT_GetIPSolution
int32_t GetIPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    *status = script.ipSolutionStatus;
    *objective = 25.5;
    writeSolution(script.ipBase, values, reducedCosts, basisStatus);
    return Call("GetIPSolution").result();
}
#endif
#endif
