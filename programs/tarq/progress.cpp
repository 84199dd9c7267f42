#include "progress.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdio>

#include "console.h"
#include "runresult.h"
#include "terminal.h"

namespace tarq::command {

namespace {

using namespace std::chrono_literals;

constexpr auto standingTime = 250ms;
constexpr std::string_view wipe = "\r\033[K";

void put(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stderr);
    std::fflush(stderr);
}

/// Seconds with a decimal while they are few, then minutes and hours.
std::string timeText(double seconds) {
    const auto whole = static_cast<long>(seconds);
    if (whole < 60) return fmt::format("{:.1f} s", seconds);
    if (whole < 3600) return fmt::format("{}:{:02} min", whole / 60, whole % 60);
    return fmt::format("{}:{:02}:{:02} h", whole / 3600, whole / 60 % 60, whole % 60);
}

std::string gapText(double best, double bound) {
    const double gap = relativeGap(best, bound);
    return std::isfinite(gap) ? fmt::format("{:.2f} %", 100.0 * gap) : "-";
}

}  // namespace

std::string progressText(ITARQModel& model, bool integer, double seconds) {
    RunResult now;
    readRunFacts(model, now);
    std::string text = fmt::format("iterations {}", now.iterations);
    if (!integer) {
        text += fmt::format("  objective {:.8g}", now.lpObjective);
    } else {
        const bool found = now.integerSolutions > 0;
        // Before the first report of branch and bound the relaxation is the best bound there is.
        const double bound = now.bestPossible != 0.0 ? now.bestPossible : now.lpObjective;
        text += fmt::format("  nodes {}  best {}  bound {:.8g}  gap {}", now.nodes,
                            found ? fmt::format("{:.8g}", now.ipObjective) : "-", bound,
                            found ? gapText(now.ipObjective, bound) : "-");
    }
    return text + "  time " + timeText(seconds);
}

ProgressLine::ProgressLine(ITARQModel& model, bool integer, bool enabled)
    : model_(model), integer_(integer), enabled_(enabled) {}

ProgressLine::~ProgressLine() {
    if (visible_) put(wipe);
}

void ProgressLine::update(bool stopping) {
    const Clock::time_point now = Clock::now();
    if (!enabled_ || now - shown_ < standingTime) return;
    shown_ = now;
    visible_ = true;
    std::string line = stopping ? "stopping (Ctrl-C again quits at once)  " : "";
    line += progressText(model_, integer_, std::chrono::duration<double>(now - start_).count());
    put(std::string(wipe) + shortened(line, terminalWidth(stderr) - 1));
}

}  // namespace tarq::command
