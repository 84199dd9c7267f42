// The conversions of Variant that are not inline.
#include <cmath>

#include "frame/localnumbers.h"
#include "frame/numbertext.h"
#include "platform/userlocale.h"
#include "tarq/frame/contained.h"
#include "tarq/frame/dispatch.h"
#include "tarq/frame/objecterror.h"
#include "tarq/frame/variant.h"

namespace tarq {
namespace {

double decimalValue(const Decimal& decimal) {
    double value = 0;
    return parseReal(displayDecimal(decimal, NumberMarks{}), value) ? value : 0;
}

/// The number that a value of a kind other than Text stands for; false for kinds that stand for none.
bool readNumber(const Variant& value, double& number) {
    switch (Kind{value.code()}) {
        case Kind::Empty:
            number = 0;
            return true;
        case Kind::Short:
        case Kind::Long:
        case Kind::Int8:
        case Kind::UInt8:
        case Kind::UInt16:
        case Kind::UInt32:
        case Kind::Int64:
        case Kind::Int:
        case Kind::UInt:
            number = static_cast<double>(value.wholeNumber());
            return true;
        case Kind::Bool:
            number = value.truth() ? -1 : 0;
            return true;
        case Kind::Single:
        case Kind::Double:
        case Kind::Date:
            number = value.real();
            return true;
        case Kind::Currency:
            number = static_cast<double>(value.currency().tenThousandths) / 10000;
            return true;
        case Kind::Decimal:
            number = decimalValue(value.decimal());
            return true;
        default:
            return false;
    }
}

/// The display of a value of a kind other than Text; false for kinds that have none.
bool display(const Variant& value, std::string& text) {
    constexpr int singleDigits = 7;
    constexpr int doubleDigits = 15;
    switch (Kind{value.code()}) {
        case Kind::Empty:
            text.clear();
            return true;
        case Kind::Single:
            text = displayReal(value.real(), singleDigits, userNumberMarks());
            return true;
        case Kind::Double:
            text = displayReal(value.real(), doubleDigits, userNumberMarks());
            return true;
        case Kind::Date:
            return displayDate(value.real(), text);
        case Kind::Currency:
            text = displayCurrency(value.currency(), userNumberMarks());
            return true;
        case Kind::Decimal:
            text = displayDecimal(value.decimal(), userNumberMarks());
            return true;
        default:
            break;
    }
    double number = 0;
    if (!readNumber(value, number)) return false;
    // The integer kinds, and Bool: without a flag that asks for words it shows as the number that it is, -1 or 0.
    text = std::to_string(value.wholeNumber());
    return true;
}

}  // namespace

bool Variant::convertReferenced(bool (Variant::*convert)()) {
    if (isArray()) return false;
    Variant plain = copyDereferenced();
    if (plain.isByReference()) plain = plain.copyDereferenced();  // a reference to a Variant that is one itself
    if (const bool* const truth = plain.referenced<bool>()) plain = Variant(*truth);
    if (plain.isByReference() || plain.isArray() || plain.isObject() || !(plain.*convert)()) return false;
    *this = std::move(plain);
    return true;
}

bool Variant::convertDefaultValue(bool (Variant::*convert)()) {
    Variant value = *this;
    if (!value.takeDefaultValue() || !(value.*convert)()) return false;
    *this = std::move(value);
    return true;
}

bool Variant::takeDefaultValue() {
    if (!isObject()) return false;
    Variant answer;
    const Status asked = contained([&]() -> Status {
        const Ref<IDispatch> object = Ref<IUnknown>(payload_.object).query<IDispatch>();
        // Objects of this component tell their members. The default ones select, and a set's would empty it.
        if (!object || object->GetMemberTable() != nullptr) return status::unknownMember;
        Variant given;
        const Status got = object->Invoke(memberid::value, invoke::get, {}, &given, nullptr);
        answer = given.copyDereferenced();
        return got;
    });
    clearLastError();  // what the object says of its failure is no answer to the caller's question
    if (!asked.isOk() || answer.isObject() || answer.isArray() || answer.isByReference()) return false;
    *this = std::move(answer);
    return true;
}

bool Variant::convertToReal() {
    if (isByReference()) return convertReferenced(&Variant::toReal);
    if (isObject()) return convertDefaultValue(&Variant::toReal);
    double number = 0;
    const bool converted = isText() ? readGatedReal(text(), userNumberMarks(), number) : readNumber(*this, number);
    if (converted) *this = Variant(number);
    return converted;
}

bool Variant::convertToInteger() {
    if (isByReference()) return convertReferenced(&Variant::toInteger);
    if (isObject()) return convertDefaultValue(&Variant::toInteger);
    std::int32_t integer = 0;
    double number = 0;
    const bool converted = isText() ? readGatedInteger(text(), userNumberMarks(), integer)
                                    : readNumber(*this, number) && roundToInteger(number, integer);
    if (converted) *this = Variant(integer);
    return converted;
}

bool Variant::convertToText() {
    if (isByReference()) return convertReferenced(&Variant::toText);
    std::string shown;
    const bool converted = display(*this, shown);
    if (converted) *this = Variant(std::move(shown));
    return converted;
}

bool Variant::normalizeValue() {
    switch (Kind{code_}) {
        case Kind::Text:
            return true;
        case Kind::Short:
        case Kind::Long:
        case Kind::Int8:
        case Kind::UInt8:
        case Kind::UInt16:
        case Kind::Int:
        case Kind::UInt:
            return toInteger();
        case Kind::Single:
            return single() == 0 ? toInteger() : toReal();
        case Kind::Double: {
            std::int32_t whole = 0;
            const double number = payload_.real;
            if (std::trunc(number) == number && roundToInteger(number, whole)) *this = Variant(whole);
            return true;
        }
        default:
            return false;
    }
}

}  // namespace tarq
