#include "modelfiles/fixednametable.h"

#include <bit>
#include <random>
#include <utility>

#include "platform/largepages.h"

namespace tarq {
namespace {

constexpr unsigned firstSlotBits = 6;
constexpr unsigned wordBits = 64;

std::uint64_t drawWord() {
    std::random_device device;
    return (std::uint64_t{device()} << 32U) | device();
}

}  // namespace

FixedNameTable::FixedNameTable()
    : slots_(std::size_t{1} << firstSlotBits),
      shift_(wordBits - firstSlotBits),
      secret_(drawWord()),
      multiplier_(drawWord() | 1U) {}

std::int32_t FixedNameTable::insert(FixedName name, std::int32_t position) {
    if (2 * (count_ + 1) > slots_.size()) resize(wordBits - shift_ + 1);
    Slot& slot = slots_[slotOf(name)];
    if (slot.position == absent) {
        slot = {name, position};
        ++count_;
    }
    return slot.position;
}

void FixedNameTable::reserve(std::size_t count) {
    const auto slotBits = static_cast<unsigned>(std::bit_width(2 * count));
    if (slotBits > wordBits - shift_) resize(slotBits);
}

void FixedNameTable::resize(unsigned slotBits) {
    const std::size_t length = std::size_t{1} << slotBits;
    std::vector<Slot> larger;
    larger.reserve(length);
    // Names fall all over the table: with small pages nearly every look-up would miss the processor's page cache too.
    preferLargePages(larger.data(), length * sizeof(Slot));
    larger.resize(length);
    const std::vector<Slot> old = std::exchange(slots_, std::move(larger));
    shift_ = wordBits - slotBits;
    for (const Slot& slot : old) {
        if (slot.position != absent) slots_[slotOf(slot.name)] = slot;
    }
}

}  // namespace tarq
