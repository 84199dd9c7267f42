// PageContents: what a page library shows of a ParameterPage, in the order and form in which it is handed over.
#pragma once

#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "parameterpage/parameterpage.h"
#include "parameters/parameterrows.h"
#include "tarq/page.h"

namespace tarq {

/// Every section, in the order of the sections; in each its rows, in the order of the rows, but those that are not for
/// the page or have no item. All pointers lead into this object.
class PageContents {
public:
    /// Shows the values that the page has now.
    explicit PageContents(const ParameterPage& page);
    PageContents(const PageContents&) = delete;
    PageContents& operator=(const PageContents&) = delete;

    [[nodiscard]] std::span<const TARQPageSection> sections() const { return sections_; }

private:
    [[nodiscard]] std::vector<TARQPageItem> itemsOf(const ParameterPage& page, ParameterSection section);
    [[nodiscard]] TARQPageItem itemOf(const ParameterRow& row, const Variant& value);
    [[nodiscard]] std::vector<TARQPageOption> optionsOf(const ParameterRow& row);
    const char* keep(std::string_view text) { return texts_.emplace_back(text).c_str(); }

    // Deques, whose elements stay where they are.
    std::deque<std::string> texts_;
    std::deque<std::vector<TARQPageOption>> options_;
    std::deque<std::vector<TARQPageItem>> items_;
    std::vector<TARQPageSection> sections_;
};

}  // namespace tarq
