// SafeArray: the typed array of the object interface, with any number of dimensions and free lower bounds.
//
// Elements lie contiguously in row-major order (the last index runs fastest): the order in which data objects read
// their values, and the one in which C and NumPy exchange buffers without a copy. Indices are checked in every build;
// a failure is a Status and leaves array and outputs as they were. While an array is locked its bounds and its storage
// stay; it may then be neither moved from, assigned nor destroyed. Not safe for use by two threads at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "tarq/frame/export.h"
#include "tarq/frame/object.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Bounds of one dimension of an array. A length of 0 is allowed.
struct Dimension {
    std::int32_t lowerBound = 0;
    std::uint32_t length = 0;

    /// Inclusive; one below lowerBound where the length is 0.
    [[nodiscard]] constexpr std::int64_t upperBound() const {
        return static_cast<std::int64_t>(lowerBound) + static_cast<std::int64_t>(length) - 1;
    }
    friend constexpr bool operator==(const Dimension&, const Dimension&) = default;
};

class TARQ_API SafeArray {
public:
    /// No dimensions and no elements, of kind Variant.
    SafeArray() = default;
    /// A copy is not locked.
    SafeArray(const SafeArray& other);
    SafeArray(SafeArray&& other) noexcept;
    SafeArray& operator=(SafeArray other) noexcept;
    ~SafeArray() = default;

    /// Makes an array of zeros, empty texts, null objects or Empty values. Elements may be of kind Variant, Text,
    /// Object, Bool, Date, Currency, Error, Single, Double or an integer kind, else wrongKind. invalidArgument when an
    /// upper bound doesn't fit 32 bits, outOfMemory when the elements don't fit memory. On failure `array` is
    /// unchanged.
    static Status create(Kind elementKind, std::span<const Dimension> dimensions, SafeArray& array);
    /// One dimension that holds `elements`, of the kind that belongs to their type: UInt8, Short, Long, Int64, Single,
    /// Double, Text, Object or Variant.
    template <class Element>
    static SafeArray of(std::vector<Element> elements, std::int32_t lowerBound = 0);

    [[nodiscard]] Kind elementKind() const noexcept { return kind_; }
    [[nodiscard]] std::span<const Dimension> dimensions() const noexcept { return dimensions_; }
    [[nodiscard]] std::size_t elementCount() const;

    /// Replaces the bounds; all elements start anew as after create. wrongState while the array is locked, else as
    /// create.
    Status redimension(std::span<const Dimension> dimensions);
    /// Drops dimensions and elements; wrongState while the array is locked.
    Status clear();

    /// Element at the indices, the first dimension's first, as a value of the element kind or, in an array of Variants,
    /// the value itself. indexOutOfRange for a wrong number of indices or one outside of its bounds.
    Status get(std::span<const std::int32_t> indices, Variant& element) const;
    /// Stores an element; it must be of the element kind, else wrongKind. An array of Variants takes anything.
    Status put(std::span<const std::int32_t> indices, Variant element);
    /// The same by position in storage order, 0-based.
    Status getAt(std::size_t position, Variant& element) const;
    Status putAt(std::size_t position, Variant element);

    /// The elements in storage order, empty when they are not stored as `Element`. Bool and Short are stored as int16_t
    /// (true is -1), Date as double, Long, Int and Error as int32_t, UInt32 and UInt as uint32_t, Currency as int64_t
    /// in ten-thousandths, Text as std::string, Object as Ref<IUnknown>; elementKind tells them apart.
    template <class Element>
    [[nodiscard]] std::span<const Element> elements() const noexcept;
    template <class Element>
    [[nodiscard]] std::span<Element> elements() noexcept;

    [[nodiscard]] std::uint32_t lockCount() const noexcept { return lockCount_; }

private:
    friend class SafeArrayLock;
    using Storage = std::variant<std::vector<Variant>, std::vector<std::uint8_t>, std::vector<std::int8_t>,
                                 std::vector<std::int16_t>, std::vector<std::uint16_t>, std::vector<std::int32_t>,
                                 std::vector<std::uint32_t>, std::vector<std::int64_t>, std::vector<float>,
                                 std::vector<double>, std::vector<std::string>, std::vector<Ref<IUnknown>>>;

    SafeArray(Kind kind, std::vector<Dimension> dimensions, Storage storage)
        : kind_(kind), dimensions_(std::move(dimensions)), storage_(std::move(storage)) {}
    static bool selectStorage(Kind kind, Storage& storage);
    [[nodiscard]] bool findPosition(std::span<const std::int32_t> indices, std::size_t& position) const noexcept;

    Kind kind_ = Kind::Variant;
    mutable std::uint32_t lockCount_ = 0;
    std::vector<Dimension> dimensions_;
    Storage storage_;
};

/// Keeps an array locked while it lives.
class SafeArrayLock {
public:
    explicit SafeArrayLock(const SafeArray& array) noexcept : array_(array) { ++array_.lockCount_; }
    SafeArrayLock(const SafeArrayLock&) = delete;
    SafeArrayLock& operator=(const SafeArrayLock&) = delete;
    ~SafeArrayLock() { --array_.lockCount_; }

private:
    const SafeArray& array_;
};

/// The element kind of arrays made from a vector of the type.
template <class Element>
inline constexpr Kind elementKindOf = referencedKind<Element>;
template <>
inline constexpr Kind elementKindOf<std::int64_t> = Kind::Int64;

template <class Element>
SafeArray SafeArray::of(std::vector<Element> elements, std::int32_t lowerBound) {
    const Dimension dimension{lowerBound, static_cast<std::uint32_t>(elements.size())};
    return SafeArray(elementKindOf<Element>, {dimension}, Storage(std::move(elements)));
}

template <class Element>
std::span<const Element> SafeArray::elements() const noexcept {
    const auto* const vector = std::get_if<std::vector<Element>>(&storage_);
    return vector == nullptr ? std::span<const Element>() : std::span<const Element>(*vector);
}

template <class Element>
std::span<Element> SafeArray::elements() noexcept {
    auto* const vector = std::get_if<std::vector<Element>>(&storage_);
    return vector == nullptr ? std::span<Element>() : std::span<Element>(*vector);
}

}  // namespace tarq
