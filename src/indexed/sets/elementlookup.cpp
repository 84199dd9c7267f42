#include "indexed/sets/elementlookup.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

namespace tarq {
namespace {

/// The bytes of a number: equal ones for equal numbers of one kind, 0.0 and -0.0 among them.
class NumberKey {
public:
    explicit NumberKey(const Variant& number) noexcept {
        if (number.is(Kind::Long)) take(number.integer());
        if (number.is(Kind::Double)) take(number.real() + 0.0);
    }
    operator std::string_view() const noexcept { return {bytes_.data(), size_}; }

private:
    template <class Number>
    void take(Number number) noexcept {
        size_ = sizeof(number);
        std::memcpy(bytes_.data(), &number, size_);
    }

    std::array<char, sizeof(double)> bytes_{};
    std::size_t size_ = 0;
};

bool isNotANumber(const Variant& value) noexcept { return value.is(Kind::Double) && std::isnan(value.real()); }

}  // namespace

// Texts are one element when their bytes are: the user's language decides how texts are sorted, not which are the same.
bool sameElement(const Variant& left, const Variant& right) noexcept {
    if (left.code() != right.code()) return false;
    switch (Kind{left.code()}) {
        case Kind::Null:
            return true;
        case Kind::Long:
            return left.integer() == right.integer();
        case Kind::Double:
            return left.real() == right.real();
        case Kind::Text:
            return left.text() == right.text();
        default:
            return false;
    }
}

ElementLookup::ElementLookup(std::vector<Variant> values) : values_(std::move(values)) {
    if (values_.size() > std::numeric_limits<std::int32_t>::max()) throw std::bad_alloc();
    if (isIndexed()) {
        buildIndex();
        return;
    }
    for (std::size_t position = 0; position < values_.size(); ++position) {
        const std::int32_t first = search(values_[position]);
        if (first == absent || first == static_cast<std::int32_t>(position)) ++distinctCount_;
    }
}

std::int32_t ElementLookup::find(const Variant& element) const {
    if (!isIndexed()) return search(element);
    if (element.isText()) {
        return texts_.find(element.text(), [this](std::int32_t position) -> std::string_view {
            return values_[static_cast<std::size_t>(position)].text();
        });
    }
    return numbers_.find(NumberKey(element), [this](std::int32_t position) {
        return NumberKey(values_[static_cast<std::size_t>(position)]);
    });
}

std::int32_t ElementLookup::search(const Variant& element) const noexcept {
    for (std::size_t position = 0; position < values_.size(); ++position) {
        if (sameElement(values_[position], element)) return static_cast<std::int32_t>(position);
    }
    return absent;
}

void ElementLookup::buildIndex() {
    const auto texts = static_cast<std::size_t>(std::ranges::count_if(values_, &Variant::isText));
    texts_.reserve(texts);
    numbers_.reserve(values_.size() - texts);
    for (std::size_t position = 0; position < values_.size(); ++position) {
        addToIndex(static_cast<std::int32_t>(position));
    }
}

void ElementLookup::addToIndex(std::int32_t position) {
    const Variant& value = values_[static_cast<std::size_t>(position)];
    bool isNew = true;
    if (value.isText()) {
        isNew = texts_.insert(value.text(), position, [this](std::int32_t other) -> std::string_view {
            return values_[static_cast<std::size_t>(other)].text();
        });
    } else if (!isNotANumber(value)) {  // which no search finds, and of which many would crowd one place of the table
        isNew = numbers_.insert(NumberKey(value), position, [this](std::int32_t other) {
            return NumberKey(values_[static_cast<std::size_t>(other)]);
        });
    }
    if (isNew) ++distinctCount_;
}

}  // namespace tarq
