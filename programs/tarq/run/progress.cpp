#include "run/progress.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "printing/console.h"
#include "run/runresult.h"

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

/// A part of the line. Where the line has no room for all, those with the lowest rank are left out first.
struct Part {
    std::string text;
    int rank;
};

std::vector<Part> partsOf(const RunResult& now, bool integer) {
    std::vector<Part> parts{{fmt::format("iterations {}", now.iterations), 1}};
    if (!integer) {
        parts.push_back({fmt::format("objective {:.8g}", now.lpObjective), 2});
        return parts;
    }
    const bool found = now.integerSolutions > 0;
    // Before the first report of branch and bound the relaxation is the best bound there is.
    const double bound = now.bestPossible != 0.0 ? now.bestPossible : now.lpObjective;
    parts.push_back({fmt::format("nodes {}", now.nodes), 3});
    parts.push_back({found ? fmt::format("best {:.8g}", now.ipObjective) : "best -", 5});
    parts.push_back({fmt::format("bound {:.8g}", bound), 2});
    parts.push_back({fmt::format("gap {}", found ? gapText(now.ipObjective, bound) : "-"), 4});
    return parts;
}

}  // namespace

std::string progressText(ITARQModel& model, bool integer, double seconds, std::size_t room) {
    RunResult now;
    readRunFacts(model, now);
    const std::string time = "time " + timeText(seconds);
    std::vector<Part> parts = partsOf(now, integer);
    const auto joined = [&] {
        std::string text;
        for (const Part& part : parts) text += part.text + "  ";
        return text + time;
    };
    while (joined().size() > room && !parts.empty()) parts.erase(std::ranges::min_element(parts, {}, &Part::rank));
    return joined();
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
    constexpr std::size_t wide = 60;
    const std::size_t width = terminalWidth(stderr) - 1;
    const std::string_view hint = width < wide ? "stopping  " : "stopping (Ctrl-C again quits)  ";
    const std::string start(stopping ? hint : "");
    const std::size_t room = width - start.size();
    const double seconds = std::chrono::duration<double>(now - start_).count();
    put(std::string(wipe) + start + progressText(model_, integer_, seconds, room));
}

}  // namespace tarq::command
