#include "indexed/sets/setarithmetic.h"

#include <array>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

#include "frame/result.h"
#include "indexed/values/valueimport.h"

namespace tarq {
namespace {

Outcome lengthsDiffer() { return {status::invalidArgument, "Lengths of vectors do not fit."}; }

/// All numbers of an array or an object. Asking for none of them leaves the comparison of lengths to the caller.
Outcome readVector(const Variant& value, std::vector<Variant>& numbers) {
    if (!value.isArray() && !value.isObject()) {
        return {status::invalidArgument, "Parameter for value is of wrong type."};
    }
    constexpr std::array<std::size_t, 1> nothing{0};
    return expandValues(value, nothing, 0, Kind::Double, numbers);
}

/// The operand of position i is operands[i], or the only operand.
struct Operands {
    bool isScalar = false;
    std::vector<Variant> numbers;

    [[nodiscard]] double at(std::size_t position) const { return numbers[isScalar ? 0 : position].real(); }
};

Outcome readOperands(const Variant& value, Operands& operands) {
    Variant operand = value.copyDereferenced();
    // An object is the vector of its values.
    operands.isScalar = !operand.isObject() && operand.toReal();
    if (!operands.isScalar) return readVector(operand, operands.numbers);
    operands.numbers.push_back(std::move(operand));
    return {};
}

bool isNumber(const Variant& element) { return element.is(Kind::Long) || element.is(Kind::Double); }
double numberOf(const Variant& element) { return element.is(Kind::Long) ? element.integer() : element.real(); }

template <class Combine>
void combineElement(Variant& element, double operand, const Combine& combine) {
    const bool wasInteger = element.is(Kind::Long);
    element = Variant(combine(numberOf(element), operand));
    if (wasInteger) (void)element.normalizeValue();  // which every number passes
}

template <class Combine>
Outcome combineElements(ElementList& elements, const Variant& value, const char* textsLeft, const Combine& combine) {
    Operands operands;
    TARQ_TRY(readOperands(value, operands));
    if (!operands.isScalar && operands.numbers.size() != elements.size()) return lengthsDiffer();
    bool allNumbers = true;
    for (std::size_t position = 0; Variant & element : elements.change()) {
        if (isNumber(element)) {
            combineElement(element, operands.at(position), combine);
        } else {
            allNumbers = false;
        }
        ++position;
    }
    return allNumbers ? Outcome() : Outcome(status::arrayCondition, textsLeft);
}

}  // namespace

Outcome addToElements(ElementList& elements, const Variant& value) {
    return combineElements(elements, value, "Addition faild for string elements of TARQSet.", std::plus<>());
}

Outcome multiplyElements(ElementList& elements, const Variant& value) {
    return combineElements(elements, value, "Multiplication faild for string elements of TARQSet.",
                           std::multiplies<>());
}

Outcome dotProduct(const ElementList& elements, const Variant& vector, double& product) {
    Operands operands;
    TARQ_TRY(readOperands(vector, operands));
    if (operands.numbers.size() != elements.size()) return lengthsDiffer();
    double sum = 0.0;
    for (std::size_t position = 0; const Variant& element : elements.values()) {
        if (!isNumber(element)) {
            return {status::invalidArgument, "Vector operation faild. Some elements of the TARQSet are strings."};
        }
        sum += numberOf(element) * operands.at(position++);
    }
    product = sum;
    return {};
}

}  // namespace tarq
