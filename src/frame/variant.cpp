#include "tarq/frame/variant.h"

#include <memory>

#include "tarq/frame/safearray.h"

namespace tarq {
namespace {

/// Moves a value to the heap for a payload that owns it; takeBack ends that.
template <class Value>
Value* given(Value value) {
    return std::make_unique<Value>(std::move(value)).release();
}

template <class Value>
void takeBack(Value* payload) noexcept {
    const std::unique_ptr<Value> owner(payload);
}

}  // namespace

Variant::Variant(const Decimal& value) : Variant(Kind::Decimal, Payload{.decimal = given(value)}) {}
Variant::Variant(std::string value) : Variant(Kind::Text, Payload{.text = given(std::move(value))}) {}
Variant::Variant(std::string_view value) : Variant(std::string(value)) {}
Variant::Variant(const char* value) : Variant(std::string(value)) {}
Variant::Variant(SafeArray array) : code_(flagged(array.elementKind(), arrayFlag)) {
    payload_.array = given(std::move(array));
}

Variant Variant::byReference(SafeArray& array) noexcept {
    return {Payload{.array = &array}, flagged(array.elementKind(), arrayFlag | byReferenceFlag)};
}

Variant Variant::integerOf(Kind kind, std::int64_t value) noexcept {
    switch (kind) {
        case Kind::Int8:
            return {kind, Payload{.whole = static_cast<std::int8_t>(value)}};
        case Kind::UInt8:
            return {kind, Payload{.whole = static_cast<std::uint8_t>(value)}};
        case Kind::Short:
            return {kind, Payload{.whole = static_cast<std::int16_t>(value)}};
        case Kind::UInt16:
            return {kind, Payload{.whole = static_cast<std::uint16_t>(value)}};
        case Kind::Long:
        case Kind::Int:
            return {kind, Payload{.whole = static_cast<std::int32_t>(value)}};
        case Kind::UInt32:
        case Kind::UInt:
            return {kind, Payload{.whole = static_cast<std::uint32_t>(value)}};
        case Kind::Int64:
            return {kind, Payload{.whole = value}};
        default:
            return {};
    }
}

std::string Variant::takeText() noexcept {
    std::string text = std::move(*payload_.text);
    *this = Variant();
    return text;
}

Variant::Payload Variant::duplicatedPayload() const {
    if (isArray()) return Payload{.array = given(SafeArray(*payload_.array))};
    if (isText()) return Payload{.text = given(std::string(*payload_.text))};
    if (is(Kind::Decimal)) return Payload{.decimal = given(*payload_.decimal)};
    if (payload_.object != nullptr) payload_.object->AddRef();
    return payload_;
}

void Variant::releasePayload() noexcept {
    if (isArray()) {
        takeBack(payload_.array);
    } else if (isText()) {
        takeBack(payload_.text);
    } else if (is(Kind::Decimal)) {
        takeBack(payload_.decimal);
    } else if (payload_.object != nullptr) {
        payload_.object->Release();
    }
}

Variant Variant::dereferenced() const {
    switch (kind()) {
        case Kind::Variant:
            return *referenced<Variant>();
        case Kind::Long:
            return Variant(*referenced<std::int32_t>());
        case Kind::Double:
            return Variant(*referenced<double>());
        case Kind::Text:
            return Variant(*referenced<std::string>());
        case Kind::Single:
            return Variant(*referenced<float>());
        case Kind::UInt8:
            return integerOf(Kind::UInt8, *referenced<std::uint8_t>());
        case Kind::Short:
            return Variant(*referenced<std::int16_t>());
        case Kind::Object:
            return Variant(*referenced<Ref<IUnknown>>());
        default:
            return *this;
    }
}

}  // namespace tarq
