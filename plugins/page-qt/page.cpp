#include "page.h"

#include <cstddef>
#include <span>

namespace tarq::page {
namespace {

/// Copies what is there, and remembers whether something was missing.
class Copier {
public:
    [[nodiscard]] bool isWhole() const { return isWhole_; }

    std::string text(const char* original) {
        isWhole_ = isWhole_ && original != nullptr;
        return original != nullptr ? original : "";
    }
    template <class Element>
    std::span<const Element> list(const Element* first, std::int32_t count) {
        const bool isThere = count == 0 || (count > 0 && first != nullptr);
        isWhole_ = isWhole_ && isThere;
        return isThere ? std::span(first, static_cast<std::size_t>(count)) : std::span<const Element>{};
    }
    Item item(const TARQPageItem& original) {
        Item made{.name = text(original.name),
                  .description = text(original.description),
                  .kind = static_cast<TARQPageItemKind>(original.kind),
                  .type = static_cast<TARQPageValueType>(original.type),
                  .value = text(original.value),
                  .defaultValue = text(original.defaultValue),
                  .minimum = text(original.minimum),
                  .maximum = text(original.maximum),
                  .maximumLength = original.maximumLength,
                  .options = {}};
        for (const TARQPageOption& option : list(original.options, original.optionCount)) {
            made.options.push_back({text(option.text), text(option.value)});
        }
        isWhole_ = isWhole_ && isShowable(made);
        return made;
    }

private:
    bool isWhole_ = true;
};

}  // namespace

std::optional<Page> readPage(const TARQPage& page) {
    Copier copier;
    Page made{.caption = copier.text(page.caption), .left = page.left, .top = page.top, .sections = {}};
    for (const TARQPageSection& section : copier.list(page.sections, page.sectionCount)) {
        Section& added = made.sections.emplace_back(Section{.title = copier.text(section.title), .items = {}});
        for (const TARQPageItem& item : copier.list(section.items, section.itemCount)) {
            added.items.push_back(copier.item(item));
        }
    }
    if (!copier.isWhole() || page.apply == nullptr) return std::nullopt;
    return made;
}

bool isShowable(const Item& item) {
    constexpr std::size_t optionsOfCheckBox = 2;
    return item.kind >= TARQPageRadioGroup && item.kind <= TARQPageFileEdit && item.type >= TARQPageInteger &&
           item.type <= TARQPageText && item.maximumLength >= 0 &&
           (item.kind != TARQPageCheckBox || item.options.size() >= optionsOfCheckBox);
}

std::vector<Message> applyTo(const TARQPage& page, const std::vector<Edit>& edits) {
    std::vector<TARQPageEdit> handed;
    handed.reserve(edits.size());
    for (const Edit& edit : edits) handed.push_back({edit.name.c_str(), edit.value.c_str()});
    std::int32_t count = 0;
    const TARQPageMessage* first = nullptr;
    page.apply(page.context, static_cast<std::int32_t>(handed.size()), handed.data(), &count, &first);
    std::vector<Message> messages;
    Copier copier;
    for (const TARQPageMessage& message : copier.list(first, count)) {
        messages.push_back({copier.text(message.text), message.icon == TARQPageStop ? TARQPageStop : TARQPageWarning});
    }
    return messages;
}

}  // namespace tarq::page
