// An engine that solves nothing, but ends its LP as the environment variable PLAYED_RUN says:
//   optimal    at once, every value 1.5
//   notanumber the same, with values that are no numbers
//   long       it runs on until it is told to stop, then ends at a break
//   deaf       it runs on and doesn't listen
//   spinning   the same without ever waiting
//   numeric    with a numeric failure and a message
//   nomemory   it gets no memory
// A run that would last is given up after 20 seconds.
#include <tarq/engine.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>
#include <thread>

namespace {

bool plays(std::string_view run) {
    const char* played = std::getenv("PLAYED_RUN");
    return played != nullptr && run == played;
}

struct State {
    std::int32_t entries = 0;
    TarqCallback callback = nullptr;
    bool stopped = false;
};
thread_local State state;  // of the run that is on in this thread

/// Another thread may read the outputs during the call.
template <class Number>
void show(Number* output, Number value) {
    std::atomic_ref(*output).store(value, std::memory_order_relaxed);
}

double number() { return plays("notanumber") ? std::numeric_limits<double>::quiet_NaN() : 1.5; }

}  // namespace

extern "C" {

int32_t Initialize(void) { return plays("nomemory") ? 1 : 0; }
int32_t FreeMemory(void) { return 0; }

int32_t SetCallback(TarqCallback callback, int32_t /*flag*/) {
    state.callback = callback;
    return 0;
}

int32_t SetParameter(const char* assignment) {
    if (std::string_view(assignment) == "XCBSTP=1") state.stopped = true;
    return 0;
}

int32_t GetParameter(const char* name, char* buffer) {
    const bool message = std::string_view(name) == "xline1" && plays("numeric");
    std::snprintf(buffer, 255, "%s",
                  message                              ? "The matrix is singular."
                  : std::string_view(name) == "xversn" ? "played"
                                                       : "");
    return 0;
}

int32_t PutModel(int32_t, double, int32_t rows, int32_t columns, int32_t, const int32_t*, const int32_t*, const double*,
                 const double*, const double*, const double*, const int32_t*) {
    state.entries = rows + columns;
    state.stopped = false;
    return 0;
}

int32_t OptimizeLP(int32_t, int32_t* iterations, int32_t* infeasibilities, int32_t* lpStatus, double* objective,
                   double* sumOfInfeasibilities) {
    show(iterations, 7);
    show(infeasibilities, 0);
    show(lpStatus, 0);
    show(objective, number());
    show(sumOfInfeasibilities, 0.0);
    if (plays("numeric")) return 4;
    if (plays("spinning")) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        volatile double sum = 0;
        while (std::chrono::steady_clock::now() < end) {
            for (int turn = 0; turn < 100'000'000; ++turn) sum = sum + turn;
        }
        return 999;
    }
    if (!plays("long") && !plays("deaf")) return 0;
    for (int turn = 0; turn < 2000 && !state.stopped; ++turn) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::atomic_ref(*iterations).fetch_add(1, std::memory_order_relaxed);
        if (state.callback != nullptr && plays("long")) state.callback();
    }
    return 999;
}

int32_t GetLPSolution(int32_t* status, double* objective, double* values, double* reducedCosts, int32_t* basisStatus) {
    show(status, plays("long") || plays("deaf") ? 3 : 0);
    show(objective, number());
    for (int32_t i = 0; i < state.entries; ++i) {
        values[i] = number();
        reducedCosts[i] = -number();
        basisStatus[i] = 1;
    }
    return 0;
}

int32_t OptimizeIP(int32_t, int32_t*, int32_t*, int32_t*, double*, double*) { return 5; }

int32_t GetIPSolution(int32_t* status, double*, double*, double*, int32_t*) {
    *status = 4;
    return 0;
}
}
