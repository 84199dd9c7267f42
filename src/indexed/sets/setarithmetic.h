// Arithmetic with the numeric elements of a set.
#pragma once

#include "indexed/sets/elementlist.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Adds a number, or a vector of Count numbers element by element, to the numeric elements, or multiplies them by it. A
/// real stays a real also when it is whole; an integer becomes a real only when it has to. Texts stay as they are and
/// make the result arrayCondition with a description. A failure, which has the status invalidArgument, changes nothing.
Outcome addToElements(ElementList& elements, const Variant& value);
Outcome multiplyElements(ElementList& elements, const Variant& value);

/// Sum over all positions of element times entry of a vector of Count numbers. Refused where there is a text.
Outcome dotProduct(const ElementList& elements, const Variant& vector, double& product);

}  // namespace tarq
