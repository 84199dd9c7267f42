// Variant: the tagged dynamic value of the object interface.
//
// A Variant owns what it holds: texts, decimals and arrays are copied with it, objects are counted. A by-reference
// Variant holds a plain pointer to a value of its caller and never owns it. Moving is cheap and leaves Empty behind.
// Text is UTF-8. Numbers are made, copied and tested inline without touching the heap, because every late-bound call
// does so for each of its arguments.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "tarq/frame/export.h"
#include "tarq/frame/object.h"

namespace tarq {

class SafeArray;
class Variant;

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

/// Code of the Error value that stands for an omitted optional argument.
inline constexpr std::uint32_t missingCode = status::unknownParameterName.value();

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

/// A set of kinds as the bits of a word.
template <class... Kinds>
constexpr std::uint32_t kindSet(Kinds... kinds) noexcept {
    return ((std::uint32_t{1} << static_cast<unsigned>(kinds)) | ...);
}

/// The kind under which a value of a C++ type can be passed by reference.
template <class Value>
inline constexpr Kind referencedKind = Kind::Empty;
template <>
inline constexpr Kind referencedKind<std::int16_t> = Kind::Short;
template <>
inline constexpr Kind referencedKind<std::int32_t> = Kind::Long;
template <>
inline constexpr Kind referencedKind<float> = Kind::Single;
template <>
inline constexpr Kind referencedKind<double> = Kind::Double;
template <>
inline constexpr Kind referencedKind<std::string> = Kind::Text;
template <>
inline constexpr Kind referencedKind<Ref<IUnknown>> = Kind::Object;
template <>
inline constexpr Kind referencedKind<bool> = Kind::Bool;
template <>
inline constexpr Kind referencedKind<std::uint8_t> = Kind::UInt8;
template <>
inline constexpr Kind referencedKind<Variant> = Kind::Variant;

class TARQ_API Variant {
public:
    Variant() noexcept = default;
    /// A template, so that pointers don't turn into truth values.
    template <std::same_as<bool> Truth>
    explicit Variant(Truth value) noexcept : Variant(Kind::Bool, Payload{.whole = value ? -1 : 0}) {}
    explicit Variant(std::int16_t value) noexcept : Variant(Kind::Short, Payload{.whole = value}) {}
    explicit Variant(std::int32_t value) noexcept : Variant(Kind::Long, Payload{.whole = value}) {}
    explicit Variant(std::int64_t value) noexcept : Variant(Kind::Int64, Payload{.whole = value}) {}
    explicit Variant(float value) noexcept : Variant(Kind::Single, Payload{.single = value}) {}
    explicit Variant(double value) noexcept : Variant(Kind::Double, Payload{.real = value}) {}
    explicit Variant(Currency value) noexcept : Variant(Kind::Currency, Payload{.whole = value.tenThousandths}) {}
    explicit Variant(const Decimal& value);
    explicit Variant(std::string value);
    explicit Variant(std::string_view value);
    explicit Variant(const char* value);
    /// The object may be null.
    explicit Variant(Ref<IUnknown> object) noexcept : Variant(Kind::Object, Payload{.object = object.detach()}) {}
    explicit Variant(SafeArray array);

    static Variant null() noexcept { return Variant(Kind::Null, Payload{.whole = 0}); }
    static Variant error(std::uint32_t code) noexcept { return Variant(Kind::Error, Payload{.whole = code}); }
    /// The omitted optional argument: the kind Error with the code unknownParameterName.
    static Variant missing() noexcept { return error(missingCode); }
    /// A point in time as days since 1899-12-30; the fraction is the time of the day, also of a day before that date.
    static Variant date(double days) noexcept { return Variant(Kind::Date, Payload{.real = days}); }
    /// A value of any of the integer kinds; bits beyond the kind's width are dropped. Empty for another kind.
    static Variant integerOf(Kind kind, std::int64_t value) noexcept;
    /// Text pointers of the caller, which must outlive the Variant and its copies.
    static Variant narrowPointer(const char* text) noexcept {
        return Variant(Kind::NarrowPointer, Payload{.pointer = text});
    }
    static Variant widePointer(const char16_t* text) noexcept {
        return Variant(Kind::WidePointer, Payload{.pointer = text});
    }
    /// Passes the caller's value by reference; it must outlive the Variant and its copies.
    template <class Value>
    requires(referencedKind<Value> != Kind::Empty) static Variant byReference(Value& value) noexcept {
        return Variant(Payload{.reference = &value}, flagged(referencedKind<Value>, byReferenceFlag));
    }
    /// Passes the caller's array by reference, under the element kind that it has now.
    static Variant byReference(SafeArray& array) noexcept;

    Variant(const Variant& other) : code_(other.code_), payload_(other.payload_) {
        if (ownsPayload()) payload_ = other.duplicatedPayload();
    }
    Variant(Variant&& other) noexcept : code_(std::exchange(other.code_, std::uint16_t{0})), payload_(other.payload_) {}
    Variant& operator=(Variant other) noexcept {
        std::swap(payload_, other.payload_);
        std::swap(code_, other.code_);
        return *this;
    }
    ~Variant() {
        if (ownsPayload()) releasePayload();
    }

    /// Kind without flags: of an array the kind of its elements, of a reference the kind it refers to.
    [[nodiscard]] Kind kind() const noexcept { return Kind{static_cast<std::uint16_t>(code_ & kindMask)}; }
    /// Published 16-bit code: the kind with its flags.
    [[nodiscard]] std::uint16_t code() const noexcept { return code_; }
    [[nodiscard]] bool isArray() const noexcept { return (code_ & arrayFlag) != 0; }
    [[nodiscard]] bool isByReference() const noexcept { return (code_ & byReferenceFlag) != 0; }

    /// Tests of the code, so that flagged values answer false.
    [[nodiscard]] bool is(Kind kind) const noexcept { return code_ == static_cast<std::uint16_t>(kind); }
    [[nodiscard]] bool isEmpty() const noexcept { return is(Kind::Empty); }
    [[nodiscard]] bool isText() const noexcept { return is(Kind::Text); }
    [[nodiscard]] bool isObject() const noexcept { return is(Kind::Object); }
    [[nodiscard]] bool isMissing() const noexcept { return is(Kind::Error) && payload_.whole == missingCode; }
    [[nodiscard]] bool isRealKind() const noexcept { return is(Kind::Single) || is(Kind::Double); }
    /// Any kind that can be one value of a list: neither Null, Object nor Error, and nothing flagged.
    [[nodiscard]] bool isScalarKind() const noexcept { return isOneOf(scalarKinds); }
    void makeMissing() noexcept { *this = missing(); }

    /// Payloads; each may be called only for its own kind.
    /// integer: the integer kinds of at most 32 bits except UInt32 and UInt; wholeNumber: all integer kinds.
    [[nodiscard]] std::int32_t integer() const noexcept { return static_cast<std::int32_t>(payload_.whole); }
    [[nodiscard]] std::int64_t wholeNumber() const noexcept { return payload_.whole; }
    /// Double, Date and Single.
    [[nodiscard]] double real() const noexcept { return is(Kind::Single) ? single() : payload_.real; }
    [[nodiscard]] float single() const noexcept { return payload_.single; }
    [[nodiscard]] bool truth() const noexcept { return payload_.whole != 0; }
    [[nodiscard]] std::uint32_t errorCode() const noexcept { return static_cast<std::uint32_t>(payload_.whole); }
    [[nodiscard]] Currency currency() const noexcept { return Currency{payload_.whole}; }
    [[nodiscard]] const Decimal& decimal() const noexcept { return *payload_.decimal; }
    [[nodiscard]] const std::string& text() const noexcept { return *payload_.text; }
    /// The text moved out; leaves Empty behind.
    [[nodiscard]] std::string takeText() noexcept;
    /// No reference is added; null where the Variant holds no object.
    [[nodiscard]] IUnknown* object() const noexcept { return payload_.object; }
    /// The array held or referred to.
    [[nodiscard]] const SafeArray& array() const noexcept { return *payload_.array; }
    [[nodiscard]] SafeArray& array() noexcept { return *payload_.array; }
    /// The caller's value, for writing through the reference; null when this is not a reference to that type.
    template <class Value>
    requires(referencedKind<Value> != Kind::Empty) [[nodiscard]] Value* referenced() const noexcept {
        const bool fits = code_ == flagged(referencedKind<Value>, byReferenceFlag);
        return fits ? static_cast<Value*>(payload_.reference) : nullptr;
    }

    /// Conversions in place. On failure the value is unchanged and the result is false. They follow references.
    /// toReal gives Double, toInteger Long (rounded to nearest, ties to even), toText Text; Bool counts as -1 or 0 in
    /// all three. Null, Error, arrays and what the target can't hold fail. Text becomes a number only if it is one
    /// under the English conventions and under the user's; its value is the English one, the same on every machine. An
    /// object, unless it is behind a reference, is asked for its default value where a number is wanted, which calls a
    /// client.
    [[nodiscard]] bool toReal() { return is(Kind::Double) || convertToReal(); }
    [[nodiscard]] bool toInteger() { return is(Kind::Long) || convertToInteger(); }
    [[nodiscard]] bool toText() { return is(Kind::Text) || convertToText(); }
    /// Gives the form in which index sets and element lists store a value: Text, Long for whole numbers, or Double.
    /// A Single other than 0 becomes a Double also when it is whole. Every other kind, UInt32 among them, fails.
    [[nodiscard]] bool normalizeValue();
    /// Replaces an object of another maker by its default value, such as the content of a spreadsheet's cell: what a
    /// get of its member 0 without arguments gives. False, and no change, for any other value, and where the object
    /// fails or gives an array or again an object.
    [[nodiscard]] bool takeDefaultValue();

    /// A copy with a by-reference wrapper resolved one level, unless it is an array or a reference to Bool.
    [[nodiscard]] Variant copyDereferenced() const {
        return (code_ & (arrayFlag | byReferenceFlag)) == byReferenceFlag ? dereferenced() : *this;
    }

private:
    union Payload {
        std::int64_t whole;   // integer kinds, Bool as -1 or 0, Error's code, Currency's ten-thousandths
        double real;          // Double, Date
        float single;         // Single
        std::string* text;    // owned
        Decimal* decimal;     // owned
        SafeArray* array;     // owned, unless by reference
        IUnknown* object;     // one reference held
        void* reference;      // the caller's
        const void* pointer;  // the caller's
    };
    static constexpr std::uint16_t kindMask = 0x0FFF;

    static constexpr std::uint32_t ownedKinds = kindSet(Kind::Text, Kind::Object, Kind::Decimal);
    static constexpr std::uint32_t scalarKinds =
        kindSet(Kind::Empty, Kind::Short, Kind::Long, Kind::Single, Kind::Double, Kind::Currency, Kind::Date,
                Kind::Text, Kind::Bool, Kind::Decimal, Kind::Int8, Kind::UInt8, Kind::UInt16, Kind::UInt32, Kind::Int64,
                Kind::Int, Kind::NarrowPointer, Kind::WidePointer);

    static constexpr std::uint16_t flagged(Kind kind, std::uint16_t flags) noexcept {
        return static_cast<std::uint16_t>(static_cast<std::uint16_t>(kind) | flags);
    }
    Variant(Kind kind, Payload payload) noexcept : code_(static_cast<std::uint16_t>(kind)), payload_(payload) {}
    Variant(Payload payload, std::uint16_t code) noexcept : code_(code), payload_(payload) {}

    [[nodiscard]] bool isOneOf(std::uint32_t kinds) const noexcept { return code_ < 32 && (kinds >> code_ & 1U) != 0; }
    [[nodiscard]] bool ownsPayload() const noexcept {
        return isOneOf(ownedKinds) || (code_ & (arrayFlag | byReferenceFlag)) == arrayFlag;
    }
    [[nodiscard]] Payload duplicatedPayload() const;
    void releasePayload() noexcept;
    [[nodiscard]] Variant dereferenced() const;
    [[nodiscard]] bool convertToReal();
    [[nodiscard]] bool convertToInteger();
    [[nodiscard]] bool convertToText();
    [[nodiscard]] bool convertReferenced(bool (Variant::*convert)());
    [[nodiscard]] bool convertDefaultValue(bool (Variant::*convert)());

    std::uint16_t code_ = 0;
    Payload payload_{.whole = 0};
};

static_assert(sizeof(Variant) == 16);

}  // namespace tarq
