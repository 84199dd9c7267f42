#include "tarq/frame/status.h"

#include <algorithm>
#include <array>

namespace tarq::status {
namespace {

#define TARQ_STATUS_ENTRY(value, name, meaning) Entry{Status{value}, #name, meaning},
constexpr std::array entries{TARQ_STATUS_LIST(TARQ_STATUS_ENTRY)};
#undef TARQ_STATUS_ENTRY

}  // namespace

std::span<const Entry> table() { return entries; }

std::string_view meaning(Status status) {
    const auto* found = std::ranges::find(entries, status, &Entry::status);
    return found == entries.end() ? "unknown status" : found->meaning;
}

}  // namespace tarq::status
