// What the member tables tell, as Python values: for help, signatures and stubs.
#pragma once

#include "python.h"
#include "tarq/frame/membertable.h"

namespace tarq::python {

/// The help text of a member; of a property what it takes and gives, too. One of the two may be null.
[[nodiscard]] py::object documentationOf(const MemberInfo* call, const MemberInfo* put);

/// The inspect.Signature of a call of a member.
[[nodiscard]] py::object signatureOf(const MemberInfo& member, bool withSelf);

/// A list of dicts: every class that can be created, with its interface and that one's members.
[[nodiscard]] py::list describedClasses();

/// A list of dicts: every published enumeration with its values.
[[nodiscard]] py::list describedEnumerations();

}  // namespace tarq::python
