// NumberedNames: names that count up from the first one, such as C0000000, C0000001 and so on or X1, X2 and so on.
//
// Most large models number their columns. Where a name stands in such a series follows from its digits: no table is
// looked at, which for a million names costs a wait for memory each time.
#pragma once

#include <bit>
#include <cstdint>

#include "modelfiles/fixedname.h"

namespace tarq {

class NumberedNames {
public:
    static constexpr std::int32_t absent = -1;

    [[nodiscard]] std::int32_t count() const { return count_; }
    /// The position of a name in the series, or `absent`.
    [[nodiscard]] std::int32_t find(FixedName name) const {
        const std::int64_t position = positionOf(name);
        return position >= 0 && position < count_ ? static_cast<std::int32_t>(position) : absent;
    }
    /// The same for a name that is added where it begins the series or is the next one, if `mayGrow`.
    std::int32_t findOrAppend(FixedName name, bool mayGrow) {
        if (count_ == 0) return mayGrow && begin(name) ? 0 : absent;
        const std::int64_t position = positionOf(name);
        if (position < 0 || position > count_ || (position == count_ && !mayGrow)) return absent;
        if (position == count_) ++count_;
        return static_cast<std::int32_t>(position);
    }

private:
    static constexpr int wordBits = 64;
    static constexpr std::uint64_t allZeros = 0x3030'3030'3030'3030U;  ///< the digit 0 in each byte

    /// Characters of a name, the last one in the lowest byte.
    struct Characters {
        std::uint64_t word;
        int length;
    };

    [[nodiscard]] static Characters charactersOf(FixedName name) {
        constexpr std::uint64_t blanks = 0x2020'2020'2020'2020U;
        const std::uint64_t word = name.bigEndianWord();
        const int blankBits = std::countr_zero(word ^ blanks) & ~7;
        return {blankBits < wordBits ? word >> static_cast<unsigned>(blankBits) : 0, (wordBits - blankBits) / 8};
    }
    [[nodiscard]] static bool areDigits(std::uint64_t word) {
        constexpr std::uint64_t highHalves = 0xF0F0'F0F0'F0F0'F0F0U;
        constexpr std::uint64_t sixes = 0x0606'0606'0606'0606U;
        return (word & highHalves) == allZeros && ((word + sixes) & highHalves) == allZeros;
    }
    /// Value of eight digits: neighbours are joined to pairs, the pairs to fours, the fours to the whole.
    [[nodiscard]] static std::int64_t valueOf(std::uint64_t digits) {
        digits &= 0x0F0F'0F0F'0F0F'0F0FU;
        digits = (digits >> 8U & 0x00FF'00FF'00FF'00FFU) * 10 + (digits & 0x00FF'00FF'00FF'00FFU);
        digits = (digits >> 16U & 0x0000'FFFF'0000'FFFFU) * 100 + (digits & 0x0000'FFFF'0000'FFFFU);
        return static_cast<std::int64_t>((digits >> 32U) * 10'000 + (digits & 0xFFFF'FFFFU));
    }
    /// The last `count` bytes, fewer than nine, with zeros in front.
    [[nodiscard]] static std::uint64_t lastDigits(std::uint64_t word, int count) {
        if (count == wordBits / 8) return word;
        const std::uint64_t mask = (std::uint64_t{1} << static_cast<unsigned>(8 * count)) - 1;
        return (word & mask) | (allZeros & ~mask);
    }

    /// How far a name is behind the first one; below 0 for one that the series never has.
    [[nodiscard]] std::int64_t positionOf(FixedName name) const {
        const auto [word, length] = charactersOf(name);
        const int digitCount = length - prefixLength_;
        if (digitCount < leastDigits_) return absent;
        if (word >> static_cast<unsigned>(8 * digitCount) != prefix_) return absent;
        const std::uint64_t digits = lastDigits(word, digitCount);
        if (!areDigits(digits)) return absent;
        // More digits than the first name has don't begin with 0, so that no number is written in two ways.
        const std::int64_t value = valueOf(digits);
        return digitCount > leastDigits_ && value < leastLonger_[digitCount] ? absent : value - first_;
    }
    bool begin(FixedName name);

    std::uint64_t prefix_ = 0;
    int prefixLength_ = 0;
    int leastDigits_ = 9;  ///< more than any name has, as long as there is no series
    std::int64_t first_ = 0;
    std::int32_t count_ = 0;
    /// The least number of so many digits.
    static constexpr std::int64_t leastLonger_[] = {0, 0, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000};
};

}  // namespace tarq
