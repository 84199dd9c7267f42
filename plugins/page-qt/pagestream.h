// What the library and the program with the window tell each other, as bytes.
//
// Each thing told is a frame: its kind, the length of its body, the body. Numbers are those of the machine, as both
// ends come from one build. The host sends a Description and, for each Edits, Messages; the program sends Shown once
// the window is on the screen, Edits for each apply, and Closed at the end. Neither end trusts the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "page.h"

namespace tarq::page {

/// The program with the window, in the folder of programs that belong to the component.
inline constexpr const char* programName = "tarq-page";

/// What a frame tells. The first number is far from those that bytes of another origin begin with.
enum class FrameKind : std::uint32_t {
    Description = 0x54515001,
    Messages,
    Begun,
    Shown,
    Edits,
    Closed,
};

/// One thing told.
struct Frame {
    FrameKind kind{};
    std::string body;
};

/// The bytes of a frame.
[[nodiscard]] std::string framed(FrameKind kind, std::string_view body = {});

/// Puts frames together from bytes as they come. Memory is taken only for what has come.
class FrameAssembler {
public:
    void add(std::string_view bytes) { bytes_ += bytes; }
    /// The next frame, if all of it is there.
    [[nodiscard]] std::optional<Frame> next();
    /// True when what came is no frame; there is no next one then.
    [[nodiscard]] bool isBroken() const { return isBroken_; }

private:
    std::string bytes_;
    bool isBroken_ = false;
};

/// The bodies of Description, Edits and Messages. Linear.
[[nodiscard]] std::string toBytes(const Page& page);
[[nodiscard]] std::string toBytes(const std::vector<Edit>& edits);
[[nodiscard]] std::string toBytes(const std::vector<Message>& messages);

/// Nothing when the bytes aren't wholly what they should be. Texts hold no zero byte then, and items can be shown.
[[nodiscard]] std::optional<Page> pageFrom(std::string_view bytes);
[[nodiscard]] std::optional<std::vector<Edit>> editsFrom(std::string_view bytes);
[[nodiscard]] std::optional<std::vector<Message>> messagesFrom(std::string_view bytes);

}  // namespace tarq::page
