// A solver engine that computes nothing: it records each call and plays its script. A run that would last is given up
// after 20 seconds.
#include "tests/support/scriptedengine/scriptedengine.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string_view>
#include <thread>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr const char* scriptVariable = "PLAYED_RUN";
constexpr auto longest = 20s;

constexpr std::pair<std::string_view, std::string_view> namedScripts[] = {
    {"optimal", ""},
    {"notanumber", "lpValue=nan lpDual=nan lpObjective=nan lpSolutionObjective=nan"},
    {"long", "wait=listening OptimizeLP=999 lpSolution=3"},
    {"deaf", "wait=deaf OptimizeLP=999 lpSolution=3"},
    {"spinning", "wait=spinning OptimizeLP=999"},
    {"numeric", "OptimizeLP=4 xline1='The matrix is singular.'"},
    {"nomemory", "Initialize=1"},
};

// Runs that are stopped for good go on in their threads, so each thread has a script of its own here.
EngineScript scriptOfEnvironment() {
    EngineScript script;
    script.play("xversn=played step=0 lpValue=1.5 lpDual=-1.5 lpObjective=1.5 lpSolutionObjective=1.5 iterations=7");
    script.play("infeasibilities=0 sum=0 OptimizeIP=5 ipSolution=4");
    const std::string_view text = std::getenv(scriptVariable);
    const auto* named = std::ranges::find(namedScripts, text, &std::pair<std::string_view, std::string_view>::first);
    script.play(named == std::end(namedScripts) ? text : named->second);
    return script;
}

EngineScript* played() {
    static EngineScript script = [] {
        EngineScript untold;
        untold.play("xversn=played");
        return untold;
    }();
    if (std::getenv(scriptVariable) == nullptr) return &script;
    static thread_local EngineScript own = scriptOfEnvironment();
    return &own;
}

double output(const char* name, double otherwise) {
    const auto found = played()->outputs.find(name);
    return found == played()->outputs.end() ? otherwise : found->second;
}

/// Another thread may read an output during the call.
template <class Number>
void show(Number* place, const char* name, double otherwise) {
    std::atomic_ref(*place).store(static_cast<Number>(output(name, otherwise)), std::memory_order_relaxed);
}

class Call {
public:
    explicit Call(const char* name) : name_(name) { line_ << name; }

    template <class... Values>
    Call& with(const Values&... values) {
        ((line_ << ' ' << values), ...);
        return *this;
    }
    template <class Value>
    Call& list(const Value* values, std::int32_t count) {
        line_ << " |";
        for (std::int32_t i = 0; i < count; ++i) line_ << ' ' << values[i];
        return *this;
    }
    std::int32_t result() {
        played()->log += line_.str() + '\n';
        if (const auto hook = played()->during.find(name_); hook != played()->during.end()) hook->second();
        const auto found = played()->results.find(name_);
        return found == played()->results.end() ? 0 : found->second;
    }

private:
    const char* name_;
    std::ostringstream line_;
};

void waitForStop(std::int32_t& iterations) {
    const std::string& wait = played()->wait;
    const auto end = std::chrono::steady_clock::now() + longest;
    while (!wait.empty() && !played()->stopped && std::chrono::steady_clock::now() < end) {
        if (wait == "spinning") {
            volatile double sum = 0;
            for (int turn = 0; turn < 100'000'000; ++turn) sum = sum + turn;
            continue;
        }
        std::this_thread::sleep_for(10ms);
        std::atomic_ref(iterations).fetch_add(1, std::memory_order_relaxed);
        if (wait == "listening" && played()->callback != nullptr) played()->callback();
    }
}

void writeSolution(double value, double dual, double* values, double* reducedCosts, std::int32_t* basisStatus) {
    const double step = output("step", 1);
    for (std::int32_t k = 0; k < played()->entries; ++k) {
        values[k] = value + k * step;
        reducedCosts[k] = dual + k * step;
        basisStatus[k] = static_cast<std::int32_t>(k * step) % 5 + 1;
    }
}

}  // namespace

extern "C" TARQ_ENGINE_API EngineScript* engineScript();
EngineScript* engineScript() { return played(); }

int32_t FreeMemory() { return Call("FreeMemory").result(); }

int32_t Initialize() {
    if (std::getenv(scriptVariable) != nullptr) *played() = scriptOfEnvironment();
    return Call("Initialize").result();
}

int32_t AllocateMemory(int32_t megabytes) { return Call("AllocateMemory").with(megabytes).result(); }

int32_t GetMaxDim(int32_t* rows, int32_t* columns, int32_t* nonzeros) {
    show(rows, "rows", 0);
    show(columns, "columns", 0);
    show(nonzeros, "nonzeros", 0);
    return Call("GetMaxDim").result();
}

int32_t SetMaxLPDim(int32_t rows, int32_t columns, int32_t nonzeros, int32_t reserved1, int32_t reserved2,
                    int32_t reserved3, int32_t reserved4, int32_t reserved5) {
    const std::int32_t reserved = reserved1 + reserved2 + reserved3 + reserved4 + reserved5;
    return Call("SetMaxLPDim").with(rows, columns, nonzeros, reserved).result();
}

int32_t InitModel() { return Call("InitModel").result(); }

int32_t SetParameter(const char* assignment) {
    if (std::string_view(assignment) == "XCBSTP=1") played()->stopped = true;
    return Call("SetParameter").with(assignment).result();
}

int32_t GetParameter(const char* name, char* buffer) {
    const std::int32_t result = Call("GetParameter").with(name).result();
    const auto found = played()->parameters.find(name);
    const bool refused = found == played()->parameters.end();
    std::strcpy(buffer, refused ? "refused" : found->second.c_str());
    return refused ? 1 : result;
}

int32_t SetCallback(TarqCallback callback, int32_t flag) {
    played()->callback = callback;
    return Call("SetCallback").with(flag).result();
}

int32_t PutModel(int32_t zero, double infinity, int32_t rows, int32_t columns, int32_t nonzeros,
                 const int32_t* rowIndices, const int32_t* columnIndices, const double* values, const double* lower,
                 const double* upper, const double* cost, const int32_t* type) {
    const std::int32_t entries = played()->entries = rows + columns;
    played()->stopped = false;
    Call call("PutModel");
    call.with(zero, infinity, rows, columns, nonzeros);
    call.list(rowIndices, nonzeros).list(columnIndices, nonzeros).list(values, nonzeros);
    return call.list(lower, entries).list(upper, entries).list(cost, columns).list(type, columns).result();
}

int32_t OptimizeLP(int32_t iterationFrequency, int32_t* iterations, int32_t* infeasibilities, int32_t* lpStatus,
                   double* objective, double* sumOfInfeasibilities) {
    show(iterations, "iterations", 11);
    show(infeasibilities, "infeasibilities", 12);
    show(lpStatus, "lpStatus", TarqLPSolvable);
    show(objective, "lpObjective", 13.5);
    show(sumOfInfeasibilities, "sum", 14.5);
    const std::int32_t result = Call("OptimizeLP").with(iterationFrequency).result();
    waitForStop(*iterations);
    return result;
}

int32_t GetLPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    show(status, "lpSolution", TarqLPSolutionOptimal);
    show(objective, "lpSolutionObjective", 15.5);
    writeSolution(output("lpValue", 100), output("lpDual", 150), values, reducedCosts, basisStatus);
    return Call("GetLPSolution").result();
}

int32_t OptimizeIP(int32_t nodeFrequency, int32_t* nodes, int32_t* integerSolutions, int32_t* stopReason,
                   double* objective, double* bestPossible) {
    show(nodes, "nodes", 21);
    show(integerSolutions, "integerSolutions", 22);
    show(stopReason, "stopReason", TarqIPOtherLimit);
    show(objective, "ipObjective", 23.5);
    show(bestPossible, "bestPossible", 24.5);
    return Call("OptimizeIP").with(nodeFrequency).result();
}

int32_t GetIPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    show(status, "ipSolution", TarqIPSolutionOptimal);
    show(objective, "ipSolutionObjective", 25.5);
    writeSolution(output("ipValue", 200), output("ipDual", 250), values, reducedCosts, basisStatus);
    return Call("GetIPSolution").result();
}
