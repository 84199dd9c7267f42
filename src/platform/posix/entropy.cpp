#include "platform/entropy.h"

#include <unistd.h>

#include <random>

namespace tarq {

std::uint64_t entropyWord() {
    std::uint64_t word = 0;
    if (getentropy(&word, sizeof word) == 0) return word;
    std::random_device device;
    return (std::uint64_t{device()} << 32U) | device();
}

}  // namespace tarq
