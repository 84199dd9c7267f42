// The C entry points by which a platform's object service loads the component: class factories by identifier, and
// whether the library can go. Entering classes in a registry has no counterpart here.
#pragma once

#include <cstdint>

#include "tarq/frame/export.h"
#include "tarq/frame/guid.h"

extern "C" {

/// Sets *out to the interface `interfaceId` (IClassFactory or IUnknown) of a class's factory. Returns 0, or the status
/// of the failure: classNotInLibrary for a class that isn't in this library, nullPointer for a null pointer, wrongClass
/// for another interface. Names and order of the arguments are the platform's.
TARQ_API std::int32_t DllGetClassObject(const tarq::Guid* classId, const tarq::Guid* interfaceId, void** out);

/// 0 when no object and no lock holds the library, else 1.
TARQ_API std::int32_t DllCanUnloadNow(void);
}
