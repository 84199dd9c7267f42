#include "tarq/frame/guid.h"

#include <fmt/format.h>

#include <charconv>
#include <cstddef>

namespace tarq {
namespace {

template <class Number>
bool readHex(std::string_view digits, Number& value) {
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, 16);
    return error == std::errc{} && stop == end;
}

}  // namespace

std::string guidText(const Guid& guid) {
    const auto& tail = guid.data4;
    return fmt::format("{{{:08X}-{:04X}-{:04X}-{:02X}{:02X}-{:02X}{:02X}{:02X}{:02X}{:02X}{:02X}}}", guid.data1,
                       guid.data2, guid.data3, tail[0], tail[1], tail[2], tail[3], tail[4], tail[5], tail[6], tail[7]);
}

bool parseGuid(std::string_view text, Guid& guid) {
    if (text.size() != 38 || text.front() != '{' || text.back() != '}') return false;
    for (const std::size_t position : {9U, 14U, 19U, 24U}) {
        if (text[position] != '-') return false;
    }
    Guid read;
    bool good = readHex(text.substr(1, 8), read.data1) && readHex(text.substr(10, 4), read.data2) &&
                readHex(text.substr(15, 4), read.data3);
    for (std::size_t i = 0; i < read.data4.size(); ++i) {
        const std::size_t position = 20 + 2 * i + (i < 2 ? 0U : 1U);
        good = good && readHex(text.substr(position, 2), read.data4[i]);
    }
    if (good) guid = read;
    return good;
}

}  // namespace tarq
