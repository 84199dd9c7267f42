#include "modelfiles/numberednames.h"

namespace tarq {

bool NumberedNames::begin(FixedName name) {
    const auto [word, length] = charactersOf(name);
    int digitCount = 0;
    while (digitCount < length && areDigits(lastDigits(word, digitCount + 1))) ++digitCount;
    // A prefix, which every name has, leaves room for digits in a word of eight.
    if (digitCount == 0 || digitCount == length) return false;
    prefix_ = word >> static_cast<unsigned>(8 * digitCount);
    prefixLength_ = length - digitCount;
    leastDigits_ = digitCount;
    first_ = valueOf(lastDigits(word, digitCount));
    count_ = 1;
    return true;
}

}  // namespace tarq
