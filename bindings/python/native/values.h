// Values on their way between Python and the component.
#pragma once

#include <string>

#include "python.h"
#include "tarq/frame/membertable.h"
#include "tarq/frame/variant.h"

namespace tarq::python {

/// What None stands for: the missing argument where a parameter is optional, else Empty.
enum class NoneMeaning { Missing, Empty };

/// A Python value as the component takes it. bool, int, float and str become their kinds (an int outside of 32 bits a
/// Double), `tarq.Missing` the missing argument, sequences and NumPy arrays arrays, objects of this package what they
/// stand for, and any other object one that answers to no interface. Throws OverflowError for an int that no Double
/// holds, UnicodeEncodeError for text that isn't Unicode, RecursionError for a list that contains itself.
[[nodiscard]] Variant toVariant(py::handle value, NoneMeaning none = NoneMeaning::Empty);

/// A value of the component as Python's: a new reference. Numeric arrays become NumPy arrays that take over the
/// storage.
[[nodiscard]] py::object toPython(Variant value);

/// The same for a value of a declared enumeration, or of none when `enumeration` is null: a member of its IntEnum, or
/// an int for a value without a name.
[[nodiscard]] py::object toPython(Variant value, const EnumerationTable* enumeration);

/// Makes `members`, a dict from number to IntEnum member, what values of the published enumeration `name` turn into.
void registerEnumeration(const std::string& name, py::dict members);

/// `tarq.Missing`, the missing argument said explicitly.
[[nodiscard]] py::object missingArgument();

}  // namespace tarq::python
