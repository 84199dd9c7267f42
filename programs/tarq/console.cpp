#include "console.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tarq::command {

namespace {

bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

}  // namespace

void showMessage(std::string_view text) {
    const std::string line = fmt::format("tarq: {}\n", text);
    std::fwrite(line.data(), 1, line.size(), stderr);
}

ExitCode writeResult(std::string_view text, ExitCode code) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (written && std::fflush(stdout) == 0) return code;
    showMessage(fmt::format("standard output could not be written: {}", std::strerror(errno)));
    return ExitCode::InputRejected;
}

std::string wrapped(std::string_view text, std::size_t width, std::size_t indent) {
    std::string result;
    std::size_t used = 0;
    while (!text.empty()) {
        const std::size_t start = text.find_first_not_of(" \n");
        if (start == std::string_view::npos) break;
        const std::size_t end = std::min(text.find_first_of(" \n", start), text.size());
        const std::string_view word = text.substr(start, end - start);
        const std::size_t length = characterCount(word);
        if (used != 0 && used + 1 + length <= width) {
            result += ' ';
            used += 1 + length;
        } else {
            if (!result.empty()) result += '\n';
            result.append(indent, ' ');
            used = indent + length;
        }
        result += word;
        text.remove_prefix(end);
    }
    return result;
}

std::string printable(std::string_view name) {
    std::string result(name);
    for (char& character : result) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20U || byte == 0x7FU) character = '?';
    }
    return result;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text) count += startsCharacter(byte) ? 1U : 0U;
    return count;
}

std::string shortened(std::string_view text, std::size_t count) {
    if (characterCount(text) <= count) return std::string(text);
    std::size_t end = 0;
    for (std::size_t taken = 0; end < text.size(); ++end) {
        if (startsCharacter(text[end]) && taken++ == count - 1) break;
    }
    return std::string(text.substr(0, end)) + "…";
}

std::string numberText(double value) { return fmt::format("{:.10g}", value == 0.0 ? 0.0 : value); }

std::string counted(long count, std::string_view noun) {
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

}  // namespace tarq::command
