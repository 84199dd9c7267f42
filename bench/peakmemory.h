// The highest resident set of this process during a piece of work. Linux only; 0 elsewhere.
#pragma once

#include <malloc.h>

#include <fstream>
#include <string>

class PeakMemory {
public:
    /// Begins the piece of work. What the allocator keeps for later is given back first, or the work could hide in it.
    PeakMemory() : before_(settledBytes()) { forgetHighest(); }

    /// The highest resident set since then, above what it was then.
    [[nodiscard]] double growth() const { return highestBytes() - before_; }
    /// What of that is still there, once the allocator has given back what is free.
    [[nodiscard]] double left() const { return settledBytes() - before_; }

    /// The highest resident set since the start of the process, or since it was last forgotten.
    [[nodiscard]] static double highestBytes() { return 1024 * kilobytes("VmHWM:"); }
    static void forgetHighest() { std::ofstream("/proc/self/clear_refs") << "5"; }

private:
    [[nodiscard]] static double settledBytes() {
        malloc_trim(0);
        return 1024 * kilobytes("VmRSS:");
    }
    [[nodiscard]] static double kilobytes(const std::string& key) {
        std::ifstream file("/proc/self/status");
        for (std::string word; file >> word;) {
            double read = 0;
            if (word == key && file >> read) return read;
        }
        return 0;
    }

    double before_;
};
