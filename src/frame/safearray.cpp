#include "tarq/frame/safearray.h"

#include <limits>
#include <new>
#include <stdexcept>
#include <type_traits>

namespace tarq {
namespace {

constexpr std::size_t mostElements = std::numeric_limits<std::ptrdiff_t>::max();

/// Number of elements of the dimensions together; false when it or an upper bound can't be represented.
bool countElements(std::span<const Dimension> dimensions, std::size_t& count) {
    if (dimensions.empty()) {
        count = 0;
        return true;
    }
    std::size_t product = 1;
    bool anyEmpty = false;
    for (const Dimension& dimension : dimensions) {
        const std::int64_t upper = dimension.upperBound();
        if (upper < std::numeric_limits<std::int32_t>::min() || upper > std::numeric_limits<std::int32_t>::max()) {
            return false;
        }
        if (dimension.length == 0) {
            anyEmpty = true;
        } else if (product > mostElements / dimension.length) {
            product = mostElements;  // too many unless another dimension is empty
        } else {
            product *= dimension.length;
        }
    }
    count = anyEmpty ? 0 : product;
    return true;
}

/// An element as the Variant of its array's kind.
template <class Element>
Variant toVariant(Kind kind, const Element& element) {
    if constexpr (std::is_same_v<Element, Variant>) {
        return element;
    } else if constexpr (std::is_same_v<Element, std::string> || std::is_same_v<Element, Ref<IUnknown>> ||
                         std::is_same_v<Element, float>) {
        return Variant(element);
    } else if constexpr (std::is_same_v<Element, double>) {
        return kind == Kind::Date ? Variant::date(element) : Variant(element);
    } else {
        if (kind == Kind::Bool) return Variant(element != 0);
        if (kind == Kind::Error) return Variant::error(static_cast<std::uint32_t>(element));
        if (kind == Kind::Currency) return Variant(Currency{static_cast<std::int64_t>(element)});
        return Variant::integerOf(kind, static_cast<std::int64_t>(element));
    }
}

/// The stored form of a Variant that is known to be of the array's kind, or of any kind for an array of Variants.
template <class Element>
Element fromVariant(Variant& value) {
    if constexpr (std::is_same_v<Element, Variant>) {
        return std::move(value);
    } else if constexpr (std::is_same_v<Element, std::string>) {
        return value.takeText();
    } else if constexpr (std::is_same_v<Element, Ref<IUnknown>>) {
        return Ref<IUnknown>(value.object());
    } else if constexpr (std::is_same_v<Element, float>) {
        return value.single();
    } else if constexpr (std::is_same_v<Element, double>) {
        return value.real();
    } else {
        return static_cast<Element>(value.wholeNumber());
    }
}

}  // namespace

SafeArray::SafeArray(const SafeArray& other)
    : kind_(other.kind_), dimensions_(other.dimensions_), storage_(other.storage_) {}

SafeArray::SafeArray(SafeArray&& other) noexcept
    : kind_(std::exchange(other.kind_, Kind::Variant)),
      dimensions_(std::exchange(other.dimensions_, {})),
      storage_(std::exchange(other.storage_, {})) {}

SafeArray& SafeArray::operator=(SafeArray other) noexcept {
    kind_ = other.kind_;
    dimensions_ = std::move(other.dimensions_);
    storage_ = std::move(other.storage_);
    return *this;
}

bool SafeArray::selectStorage(Kind kind, Storage& storage) {
    switch (kind) {
        case Kind::Variant:
            storage.emplace<std::vector<Variant>>();
            return true;
        case Kind::UInt8:
            storage.emplace<std::vector<std::uint8_t>>();
            return true;
        case Kind::Int8:
            storage.emplace<std::vector<std::int8_t>>();
            return true;
        case Kind::Short:
        case Kind::Bool:
            storage.emplace<std::vector<std::int16_t>>();
            return true;
        case Kind::UInt16:
            storage.emplace<std::vector<std::uint16_t>>();
            return true;
        case Kind::Long:
        case Kind::Int:
        case Kind::Error:
            storage.emplace<std::vector<std::int32_t>>();
            return true;
        case Kind::UInt32:
        case Kind::UInt:
            storage.emplace<std::vector<std::uint32_t>>();
            return true;
        case Kind::Int64:
        case Kind::Currency:
            storage.emplace<std::vector<std::int64_t>>();
            return true;
        case Kind::Single:
            storage.emplace<std::vector<float>>();
            return true;
        case Kind::Double:
        case Kind::Date:
            storage.emplace<std::vector<double>>();
            return true;
        case Kind::Text:
            storage.emplace<std::vector<std::string>>();
            return true;
        case Kind::Object:
            storage.emplace<std::vector<Ref<IUnknown>>>();
            return true;
        default:
            return false;
    }
}

Status SafeArray::create(Kind elementKind, std::span<const Dimension> dimensions, SafeArray& array) {
    Storage storage;
    if (!selectStorage(elementKind, storage)) return status::wrongKind;
    std::size_t count = 0;
    if (!countElements(dimensions, count)) return status::invalidArgument;
    try {
        std::visit([count](auto& elements) { elements.resize(count); }, storage);
        array = SafeArray(elementKind, {dimensions.begin(), dimensions.end()}, std::move(storage));
    } catch (const std::bad_alloc&) {
        return status::outOfMemory;
    } catch (const std::length_error&) {
        return status::outOfMemory;
    }
    return status::ok;
}

std::size_t SafeArray::elementCount() const {
    return std::visit([](const auto& elements) { return elements.size(); }, storage_);
}

Status SafeArray::redimension(std::span<const Dimension> dimensions) {
    if (lockCount_ != 0) return status::wrongState;
    return create(kind_, dimensions, *this);
}

Status SafeArray::clear() { return redimension({}); }

bool SafeArray::findPosition(std::span<const std::int32_t> indices, std::size_t& position) const noexcept {
    if (indices.size() != dimensions_.size() || indices.empty()) return false;
    std::size_t found = 0;
    for (std::size_t i = 0; i < indices.size(); ++i) {
        const Dimension& dimension = dimensions_[i];
        const std::int64_t offset = static_cast<std::int64_t>(indices[i]) - dimension.lowerBound;
        if (offset < 0 || offset >= static_cast<std::int64_t>(dimension.length)) return false;
        found = found * dimension.length + static_cast<std::size_t>(offset);
    }
    position = found;
    return true;
}

Status SafeArray::get(std::span<const std::int32_t> indices, Variant& element) const {
    std::size_t position = 0;
    if (!findPosition(indices, position)) return status::indexOutOfRange;
    return getAt(position, element);
}

Status SafeArray::put(std::span<const std::int32_t> indices, Variant element) {
    std::size_t position = 0;
    if (!findPosition(indices, position)) return status::indexOutOfRange;
    return putAt(position, std::move(element));
}

Status SafeArray::getAt(std::size_t position, Variant& element) const {
    if (position >= elementCount()) return status::indexOutOfRange;
    element =
        std::visit([this, position](const auto& elements) { return toVariant(kind_, elements[position]); }, storage_);
    return status::ok;
}

Status SafeArray::putAt(std::size_t position, Variant element) {
    if (position >= elementCount()) return status::indexOutOfRange;
    if (kind_ != Kind::Variant && !element.is(kind_)) return status::wrongKind;
    const auto store = [position, &element](auto& elements) {
        elements[position] = fromVariant<std::remove_cvref_t<decltype(elements[position])>>(element);
    };
    std::visit(store, storage_);
    return status::ok;
}

}  // namespace tarq
