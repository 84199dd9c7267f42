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
        if (!child_.write(framed(FrameKind::Description, toBytes(page)), patience)) return false;
        const auto shownBy = Clock::now() + patience;
        while (!isClosed_) {
            if (!isShown_ && Clock::now() >= shownBy) return false;
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
            if (isClosed_ || !take(*frame)) return false;
        }
        return !assembler_.isBroken();
    }

    [[nodiscard]] bool take(const Frame& frame) {
        if (frame.kind == FrameKind::Shown) {
            isShown_ = true;
            return true;
        }
        if (!isShown_) return false;
        if (frame.kind == FrameKind::Closed) {
            isClosed_ = true;
            return true;
        }
        return frame.kind == FrameKind::Edits && apply(frame.body);
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
    bool isShown_ = false;
    bool isClosed_ = false;
    ChildProcess child_;
};

}  // namespace

bool showInOwnProcess(const TARQPage& origin, const Page& page, HostLoop* loop) {
    return PageProcess(origin, page, loop).run(page);
}

}  // namespace tarq::page
