// What is said about an item's values, apart from any window.
#pragma once

#include <string>

#include "../page.h"

namespace tarq::page {

/// Whether two texts stand for the same value of the item: numbers are compared as numbers.
[[nodiscard]] bool isSameValue(const Item& item, const std::string& one, const std::string& other);

/// "0 to 2000", "at least 0", "at most 9"; for a text its greatest length. Empty without limits.
[[nodiscard]] std::string limitsText(const Item& item);

/// A value as the person knows it: the text of its option, "ticked" or "not ticked", "empty" for an empty text.
[[nodiscard]] std::string shownValue(const Item& item, const std::string& value);

/// Why this value would hardly be stored; empty for one that looks well. A hint only: the component decides.
[[nodiscard]] std::string doubtAbout(const Item& item, const std::string& value);

}  // namespace tarq::page
