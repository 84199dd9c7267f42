#include "pageprocess.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <unordered_set>

#include "pagestream.h"
#include "platform/childprocess.h"
#include "platform/programsearch.h"

namespace tarq::page {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// A display that doesn't answer by then won't.
constexpr auto patience = 5s;
// A program may have to come from a slow disk first, with all of Qt.
constexpr auto patienceAtStart = 20s;
// How long the host's own events, or the wait for the program, go on between two looks at the other.
constexpr auto lookInterval = 20ms;

/// One page from the start of its program to its end.
class PageProcess {
public:
    PageProcess(const TARQPage& origin, const Page& page, HostLoop* loop)
        : origin_(origin),
          loop_(loop),
          child_(findOwnProgram(programName), {}, ChildProcess::Input::Written, ChildProcess::Errors::Dropped) {
        for (const Section& section : page.sections) {
            for (const Item& item : section.items) names_.insert(item.name);
        }
    }

    [[nodiscard]] bool run(const Page& page) {
        if (child_.start() != ChildProcess::Start::Done) return false;
        if (!child_.write(framed(FrameKind::Description, toBytes(page)), patienceAtStart)) return false;
        nextStepBy_ = Clock::now() + patienceAtStart;
        while (stage_ != FrameKind::Closed) {
            if (stage_ != FrameKind::Shown && Clock::now() >= nextStepBy_) return false;
            if (!readOutput() || !takeFrames()) return false;
        }
        return true;
    }

private:
    /// Takes what the program has written, or waits a little. False when there won't be any more, or when the host
    /// wants to end.
    [[nodiscard]] bool readOutput() {
        std::array<char, 4096> bytes{};
        std::size_t count = 0;
        switch (child_.read(bytes.data(), bytes.size(), count, loop_ != nullptr ? 0ms : lookInterval)) {
            case ChildProcess::Read::Bytes:
                assembler_.add({bytes.data(), count});
                return true;
            case ChildProcess::Read::NotYet:
                return loop_ == nullptr || loop_->run(lookInterval);
            default:
                return false;
        }
    }

    [[nodiscard]] bool takeFrames() {
        while (const auto frame = assembler_.next()) {
            if (!take(*frame)) return false;
        }
        return !assembler_.isBroken();
    }

    /// Takes what may come at this stage, and nothing else.
    [[nodiscard]] bool take(const Frame& frame) {
        const FrameKind before = stage_;
        if (frame.kind == FrameKind::Edits) return before == FrameKind::Shown && apply(frame.body);
        stage_ = frame.kind;
        nextStepBy_ = Clock::now() + patience;
        switch (frame.kind) {
            case FrameKind::Begun:
                return before == FrameKind::Description;
            case FrameKind::Shown:
                return before == FrameKind::Begun;
            case FrameKind::Closed:
                return before == FrameKind::Shown;
            default:
                return false;
        }
    }

    [[nodiscard]] bool apply(const std::string& body) {
        const auto edits = editsFrom(body);
        if (!edits) return false;
        if (!std::ranges::all_of(*edits, [this](const Edit& edit) { return names_.contains(edit.name); })) return false;
        return child_.write(framed(FrameKind::Messages, toBytes(applyTo(origin_, *edits))), patience);
    }

    const TARQPage& origin_;
    HostLoop* loop_;
    std::unordered_set<std::string> names_;
    FrameAssembler assembler_;
    FrameKind stage_ = FrameKind::Description;  ///< what was told last, of the steps to the end
    Clock::time_point nextStepBy_;
    ChildProcess child_;
};

}  // namespace

bool showInOwnProcess(const TARQPage& origin, const Page& page, HostLoop* loop) {
    return PageProcess(origin, page, loop).run(page);
}

}  // namespace tarq::page
