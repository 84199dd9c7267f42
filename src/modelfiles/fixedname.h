// FixedName: a name of at most eight bytes, as a field of an MPS file holds it, in one machine word.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tarq {

/// The text of a name field without the blanks around it, padded with blanks: as no name ends with a blank, two names
/// are equal exactly when their words are. The default is the empty name.
class FixedName {
public:
    /// Bytes that a name may have.
    static constexpr std::size_t longest = 8;

    FixedName() = default;
    /// Takes the first eight bytes of `field`, blanks in front not counted.
    constexpr explicit FixedName(std::string_view field) {
        if (field.size() < longest || field.front() == ' ') {
            field.remove_prefix(std::min(field.find_first_not_of(' '), field.size()));
            field.copy(bytes_.data(), longest);
        } else {
            std::memcpy(bytes_.data(), field.data(), longest);
        }
    }

    /// `name`, at most eight bytes without a blank, in capitals. `rest` begins with the name and may be longer.
    [[nodiscard]] static FixedName inCapitals(std::size_t size, std::string_view rest) {
        FixedName name;
        if (rest.size() < longest) {
            rest.copy(name.bytes_.data(), size);
        } else {
            // All eight bytes at once, and blanks over those behind the name.
            const std::uint64_t kept = std::bit_cast<std::uint64_t>(keptBytes[size]);
            std::uint64_t word = 0;
            std::memcpy(&word, rest.data(), longest);
            word = (word & kept) | (name.word() & ~kept);
            std::memcpy(name.bytes_.data(), &word, longest);
        }
        name.raise();
        return name;
    }

    [[nodiscard]] bool empty() const { return *this == FixedName(); }
    /// Valid as long as this object.
    [[nodiscard]] std::string_view text() const {
        const std::string_view padded(bytes_.data(), longest);
        return padded.substr(0, padded.find_last_not_of(' ') + 1);
    }
    [[nodiscard]] std::uint64_t word() const {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes_.data(), longest);
        return word;
    }

    /// The bytes as a number, the first one the highest.
    [[nodiscard]] std::uint64_t bigEndianWord() const {
        const std::uint64_t word = this->word();
        if constexpr (std::endian::native == std::endian::big) return word;
        constexpr std::uint64_t low = 0x0000'00FF'0000'00FFU;
        // Compilers know this as one instruction.
        const std::uint64_t quarters =
            (word >> 24U & low) | (word >> 8U & low << 8U) | (word & low << 8U) << 8U | (word & low) << 24U;
        return quarters >> 32U | quarters << 32U;
    }

    friend bool operator==(const FixedName& left, const FixedName& right) { return left.word() == right.word(); }

private:
    using Bytes = std::array<char, longest>;

    /// By the size of a name, all bits of the bytes that are its own.
    static constexpr std::array<Bytes, longest + 1> keptBytes = [] {
        std::array<Bytes, longest + 1> kept{};
        for (std::size_t size = 0; size <= longest; ++size) {
            for (std::size_t i = 0; i < size; ++i) kept[size][i] = '\xFF';
        }
        return kept;
    }();

    /// Turns ASCII small letters into capitals, all bytes at once: adding to the low seven bits of a byte raises its
    /// top bit where it is at least 'a', and where it is beyond 'z'.
    void raise() {
        constexpr std::uint64_t each = 0x0101'0101'0101'0101U;
        constexpr std::uint64_t topBits = each * 0x80U;
        const std::uint64_t word = this->word();
        const std::uint64_t low = word & ~topBits;
        const std::uint64_t fromA = low + each * (0x80U - 'a');
        const std::uint64_t beyondZ = low + each * (0x7FU - 'z');
        const std::uint64_t small = (fromA ^ beyondZ) & ~word & topBits;
        const std::uint64_t raised = word ^ (small >> 2U);
        std::memcpy(bytes_.data(), &raised, longest);
    }

    Bytes bytes_{' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
};

}  // namespace tarq
