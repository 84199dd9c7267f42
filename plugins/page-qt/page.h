// What a page shows and what comes of it, as values of our own: the texts of tarq/page.h belong to the component, and
// the window may run in another process.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tarq/page.h"

namespace tarq::page {

/// A value with a name: a button of a group, an entry of a list, or one of the two states of a box.
struct Option {
    std::string text;
    std::string value;
};

/// A parameter. Values and limits are texts as the component writes them; no limit is an empty one.
struct Item {
    std::string name;
    std::string description;
    TARQPageItemKind kind = TARQPageEditField;
    TARQPageValueType type = TARQPageText;
    std::string value;
    std::string defaultValue;
    std::string minimum;
    std::string maximum;
    std::int32_t maximumLength = 0;  ///< of a text, in UTF-16 code units; 0 for any
    std::vector<Option> options;
};

/// Items under a title, in the order in which they are shown.
struct Section {
    std::string title;
    std::vector<Item> items;
};

struct Page {
    std::string caption;
    /// Where the window would like to stand, in pixels of the screen.
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::vector<Section> sections;
};

/// What a person has made of the parameter of a name.
struct Edit {
    std::string name;
    std::string value;
};

/// Something to tell the person behind an apply.
struct Message {
    std::string text;
    TARQPageIcon icon = TARQPageWarning;
};

/// The component's page as values; nothing when a text is missing, a count is negative, or a kind isn't known.
[[nodiscard]] std::optional<Page> readPage(const TARQPage& page);

/// False for an item that no window could show: of a kind or type that isn't known, or a check box without its two
/// options.
[[nodiscard]] bool isShowable(const Item& item);

/// Has the component store the edits. Returns what it has to tell.
[[nodiscard]] std::vector<Message> applyTo(const TARQPage& page, const std::vector<Edit>& edits);

}  // namespace tarq::page
