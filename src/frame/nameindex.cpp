#include "frame/nameindex.h"

#include <algorithm>
#include <bit>
#include <new>
#include <utility>

#include "platform/entropy.h"

namespace tarq {
namespace {

constexpr unsigned hashBits = 32;
constexpr unsigned firstSlotBits = 4;

/// As many names as a table of so many slots takes. A search compares hashes that stand side by side, which is cheap
/// enough for a table as full as that.
constexpr std::size_t countLimit(std::size_t slotCount) { return slotCount / 5 * 4; }

/// Drawn once: many an index lives for a shorter time than the system takes to answer.
struct HashSecret {
    std::uint64_t secret = entropyWord();
    std::uint64_t multiplier = entropyWord() | 1U;
};

const HashSecret& hashSecret() {
    static const HashSecret drawn;
    return drawn;
}

}  // namespace

NameIndex::NameIndex() : secret_(hashSecret().secret), multiplier_(hashSecret().multiplier) {}

NameIndex::NameIndex(NameIndex&& other) noexcept
    : slots_(std::exchange(other.slots_, {})),
      count_(std::exchange(other.count_, 0)),
      countLimit_(std::exchange(other.countLimit_, 0)),
      shift_(other.shift_),
      secret_(other.secret_),
      multiplier_(other.multiplier_) {}

NameIndex& NameIndex::operator=(NameIndex other) noexcept {
    std::swap(slots_, other.slots_);
    std::swap(count_, other.count_);
    std::swap(countLimit_, other.countLimit_);
    std::swap(shift_, other.shift_);
    std::swap(secret_, other.secret_);
    std::swap(multiplier_, other.multiplier_);
    return *this;
}

void NameIndex::erase(std::string_view name, std::int32_t position) noexcept {
    if (slots_.empty()) return;
    const std::uint32_t hash = hashOf(name);
    std::size_t gap = placeOf(hash);
    for (; slots_[gap].hash != hash || slots_[gap].position != position; gap = nextPlace(gap)) {
        if (slots_[gap].position == absent) return;
    }
    --count_;
    // What stands behind the gap moves into it where its search would otherwise end there.
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = nextPlace(gap); slots_[at].position != absent; at = nextPlace(at)) {
        const std::size_t searched = (at - placeOf(slots_[at].hash)) & mask;
        if (searched < ((at - gap) & mask)) continue;
        slots_[gap] = slots_[at];
        gap = at;
    }
    slots_[gap] = {};
}

void NameIndex::reserve(std::size_t count) {
    if (count <= countLimit_) return;
    unsigned slotBits = std::max(firstSlotBits, static_cast<unsigned>(std::bit_width(count)));
    if (countLimit(std::size_t{1} << slotBits) < count) ++slotBits;
    resize(slotBits);
}

void NameIndex::clear() noexcept {
    slots_ = Slots();
    count_ = countLimit_ = 0;
}

void NameIndex::putDown(const Slot& entry) noexcept {
    std::size_t place = placeOf(entry.hash);
    while (slots_[place].position != absent) place = nextPlace(place);
    slots_[place] = entry;
}

void NameIndex::grow() { resize(slots_.empty() ? firstSlotBits : hashBits - shift_ + 1); }

void NameIndex::shrink() noexcept {
    if (count_ == 0) return clear();
    if (count_ > countLimit_ / 8) return;
    try {
        // Half full.
        resize(std::max(firstSlotBits, static_cast<unsigned>(std::bit_width(2 * count_))));
    } catch (const std::bad_alloc&) {  // The large one serves as well.
        return;
    }
}

void NameIndex::resize(unsigned slotBits) {
    if (slotBits > hashBits) throw std::bad_alloc();
    const Slots old = std::exchange(slots_, Slots(std::size_t{1} << slotBits));
    shift_ = hashBits - slotBits;
    countLimit_ = countLimit(slots_.size());
    for (const Slot& slot : old) {
        if (slot.position != absent) putDown(slot);
    }
}

}  // namespace tarq
