// What sets do with lists of values: adding, inserting, deleting and comparing.
//
// An entry of a list stands for one value, for all elements of an array that came by reference, or for all values of an
// object. Nothing is undone when an entry is refused: what stands before it has had its effect. Reading an object can
// run its client's code, which may look at the set and change it; the entries before it have had their effect then.
#pragma once

#include <cstdint>

#include "indexed/sets/elementlist.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"

namespace tarq {

/// Appends all values of a list. Failures have the status invalidArgument.
Outcome appendElements(ElementList& elements, const ValueList& list);

/// Inserts all values of a list, in their order, in front of a position, or behind it; positions are 1 to Count, else
/// "Index out of valid range." with indexOutOfRange.
Outcome insertElementsBefore(ElementList& elements, std::int32_t index, const ValueList& list);
Outcome insertElementsAfter(ElementList& elements, std::int32_t index, const ValueList& list);

/// Removes all elements that equal a value of the list. One pass over the elements, and one more for each object in the
/// list that stands behind other values.
Outcome deleteElements(ElementList& elements, const ValueList& list);

/// Overwrites the element at a position from 1 to Count.
Outcome putElement(ElementList& elements, std::int32_t index, const Variant& value);

/// Position from 1 of the first element that equals `item`, 0 when there is none.
Outcome findElement(const ElementList& elements, const Variant& item, std::int32_t& index);
/// The same from position `start` on, which has to be one from 1 to Count.
Outcome findNextElement(const ElementList& elements, const Variant& item, std::int32_t start, std::int32_t& index);

/// Sets `answer` to 1 if every value of the list is an element, else to 0. Linear.
Outcome containsAll(const ElementList& elements, const ValueList& list, std::int32_t& answer);
/// Sets `answer` to 1 if every element is a value of the list, else to 0. Linear.
Outcome isContainedIn(const ElementList& elements, const ValueList& list, std::int32_t& answer);

}  // namespace tarq
