// What each stage of a program took, told on the standard output.
//
// Lines: "stage NUMBER SECONDS PROCESSOR_SECONDS PEAK_BYTES" for each stage, "engine SECONDS" for the solving within
// them and "objective VALUE". table.py, which starts the programs, knows what the numbers of the stages stand for.
#pragma once

#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <numeric>
#include <span>
#include <stdexcept>
#include <vector>

#include "../peakmemory.h"

namespace scale {

class Stages {
public:
    Stages() { begin(); }

    /// Ends a stage; the next one begins.
    void end(int number) {
        const std::chrono::duration<double> seconds = Clock::now() - start_;
        std::printf("stage %d %.6f %.6f %.0f\n", number, seconds.count(), processorSeconds() - processorStart_,
                    PeakMemory::highestBytes());
        begin();
    }

private:
    using Clock = std::chrono::steady_clock;

    void begin() {
        PeakMemory::forgetHighest();
        processorStart_ = processorSeconds();
        start_ = Clock::now();
    }
    /// Of all threads.
    [[nodiscard]] static double processorSeconds() {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
    }

    Clock::time_point start_;
    double processorStart_ = 0;
};

/// Tells what solving took within the stages, and the objective, which has to be that of the solution read.
inline void tellResult(const std::vector<double>& costs, std::span<const double> solution, double engineSeconds,
                       double objective) {
    if (solution.size() != costs.size()) throw std::runtime_error("the solution has another size than the model");
    const double cost = std::inner_product(costs.begin(), costs.end(), solution.begin(), 0.0);
    if (std::abs(cost - objective) > 1e-6 * std::abs(objective)) throw std::runtime_error("wrong solution");
    std::printf("engine %.6f\nobjective %.6f\n", engineSeconds, objective);
}

}  // namespace scale
