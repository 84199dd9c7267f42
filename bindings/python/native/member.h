// Members of proxies: the descriptors in the types, and what a member of one object is that takes arguments.
#pragma once

#include "python.h"
#include "tarq/frame/membertable.h"

namespace tarq::python {

struct InterfaceType;

/// The types of descriptors and of bound members, made once.
void makeMemberTypes();

/// The descriptor of a member: of a method, or of a property with its get and its put.
[[nodiscard]] py::object makeDescriptor(const InterfaceType& type, const MemberInfo& first);

}  // namespace tarq::python
