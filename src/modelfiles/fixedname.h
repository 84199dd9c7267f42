// FixedName: a name of at most eight bytes, as a field of an MPS file holds it, in one machine word.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tarq {

/// The text of a name field without the blanks around it, padded with blanks: as no name ends with a blank, two names
/// are equal exactly when their words are. The default is the empty name.
class FixedName {
public:
    FixedName() = default;
    /// Takes the first eight bytes of `field`, blanks in front not counted.
    explicit FixedName(std::string_view field) {
        if (field.size() < length || field.front() == ' ') {
            field.remove_prefix(std::min(field.find_first_not_of(' '), field.size()));
            field.copy(bytes_.data(), length);
        } else {
            std::memcpy(bytes_.data(), field.data(), length);
        }
    }

    [[nodiscard]] bool empty() const { return *this == FixedName(); }
    /// Valid as long as this object.
    [[nodiscard]] std::string_view text() const {
        const std::string_view padded(bytes_.data(), length);
        return padded.substr(0, padded.find_last_not_of(' ') + 1);
    }
    [[nodiscard]] std::uint64_t word() const {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes_.data(), length);
        return word;
    }

    friend bool operator==(const FixedName& left, const FixedName& right) { return left.word() == right.word(); }

private:
    static constexpr std::size_t length = 8;

    std::array<char, length> bytes_{' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
};

}  // namespace tarq
