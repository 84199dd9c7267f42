// Variant: the tagged dynamic value of the object interface.
//
// A Variant owns what it holds: texts and arrays are copied with it, objects are counted. A by-reference Variant holds
// a plain pointer to a value of its caller and never owns it. Moving is cheap and leaves Empty behind. Text is UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "frame/export.h"
#include "frame/object.h"

namespace tarq {

class SafeArray;

/// Kind codes, as published; arrayFlag and byReferenceFlag lie over them.
enum class Kind : std::uint16_t {
    Empty = 0,
    Null = 1,
    Short = 2,
    Long = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    Text = 8,
    Object = 9,
    Error = 10,
    Bool = 11,
    Variant = 12,
    Decimal = 14,
    Int8 = 16,
    UInt8 = 17,
    UInt16 = 18,
    UInt32 = 19,
    Int64 = 20,
    Int = 22,
    UInt = 23,
    NarrowPointer = 30,
    WidePointer = 31,
};
inline constexpr std::uint16_t arrayFlag = 0x2000;
inline constexpr std::uint16_t byReferenceFlag = 0x4000;

/// Fixed-point number with four decimals: `tenThousandths` / 10000.
struct Currency {
    std::int64_t tenThousandths = 0;
};

/// A 96-bit integer divided by a power of ten.
struct Decimal {
    std::uint32_t low = 0;
    std::uint32_t middle = 0;
    std::uint32_t high = 0;
    std::uint8_t scale = 0;  ///< power of ten, 0 to 28
    bool negative = false;
};

class TARQ_API Variant {
public:
    Variant() noexcept = default;
    explicit Variant(bool value) noexcept;
    explicit Variant(std::int16_t value) noexcept;
    explicit Variant(std::int32_t value) noexcept;
    explicit Variant(std::int64_t value) noexcept;
    explicit Variant(float value) noexcept;
    explicit Variant(double value) noexcept;
    explicit Variant(std::string value);
    explicit Variant(std::string_view value);
    explicit Variant(const char* value);
    explicit Variant(Ref<IUnknown> object) noexcept;
    explicit Variant(SafeArray array);
    /// The omitted optional argument: the kind Error with the code 0x80020004.
    static Variant missing() noexcept;

    Variant(const Variant& other);
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant other) noexcept;
    ~Variant();

    /// Kind without flags.
    [[nodiscard]] Kind kind() const noexcept;
    /// Published 16-bit code: the kind with its flags.
    [[nodiscard]] std::uint16_t code() const noexcept;

    [[nodiscard]] bool isText() const noexcept;
    [[nodiscard]] bool isMissing() const noexcept;
    [[nodiscard]] bool isRealKind() const noexcept;
    [[nodiscard]] bool isScalarKind() const noexcept;
    void makeMissing() noexcept;

    /// Payloads; each may be called only for its own kind.
    [[nodiscard]] std::int32_t integer() const noexcept;
    [[nodiscard]] double real() const noexcept;
    [[nodiscard]] const std::string& text() const noexcept;

    /// Conversions in place. On failure the value is unchanged and the result is false.
    [[nodiscard]] bool toReal();
    [[nodiscard]] bool toInteger();
    [[nodiscard]] bool toText();
    [[nodiscard]] bool normalizeValue();

    /// A copy with a by-reference wrapper resolved one level, unless it is an array.
    [[nodiscard]] Variant copyDereferenced() const;
};

}  // namespace tarq
