// ElementReader: the elements of a typed array as values, for the seven kinds of elements that data may come in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "tarq/frame/safearray.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Reads elements by their position in storage order. Numbers come as doubles, texts and Variants as they are. The
/// array must outlive the reader.
class ElementReader {
public:
    explicit ElementReader(const SafeArray& array) noexcept : kind_(array.elementKind()), first_(firstOf(array)) {}

    /// Whether the elements are of one of the seven kinds: UInt8, Short, Long, Single, Double, Text or Variant.
    [[nodiscard]] bool isReadable() const noexcept { return (readableKinds >> static_cast<unsigned>(kind_) & 1U) != 0; }
    [[nodiscard]] bool isNumeric() const noexcept { return kind_ != Kind::Text && kind_ != Kind::Variant; }

    /// Only where isNumeric.
    [[nodiscard]] double number(std::size_t position) const noexcept {
        switch (kind_) {
            case Kind::UInt8:
                return at<std::uint8_t>(position);
            case Kind::Short:
                return at<std::int16_t>(position);
            case Kind::Long:
                return at<std::int32_t>(position);
            case Kind::Single:
                return static_cast<double>(at<float>(position));
            default:
                return at<double>(position);
        }
    }

    [[nodiscard]] Variant value(std::size_t position) const {
        if (kind_ == Kind::Text) return Variant(at<std::string>(position));
        if (kind_ == Kind::Variant) return at<Variant>(position);
        return Variant(number(position));
    }

private:
    static constexpr std::uint32_t readableKinds =
        kindSet(Kind::UInt8, Kind::Short, Kind::Long, Kind::Single, Kind::Double, Kind::Text, Kind::Variant);

    static const void* firstOf(const SafeArray& array) noexcept {
        switch (array.elementKind()) {
            case Kind::UInt8:
                return array.elements<std::uint8_t>().data();
            case Kind::Short:
                return array.elements<std::int16_t>().data();
            case Kind::Long:
                return array.elements<std::int32_t>().data();
            case Kind::Single:
                return array.elements<float>().data();
            case Kind::Double:
                return array.elements<double>().data();
            case Kind::Text:
                return array.elements<std::string>().data();
            default:
                return array.elements<Variant>().data();
        }
    }
    template <class Element>
    [[nodiscard]] const Element& at(std::size_t position) const noexcept {
        return static_cast<const Element*>(first_)[position];
    }

    Kind kind_;
    const void* first_;
};

}  // namespace tarq
