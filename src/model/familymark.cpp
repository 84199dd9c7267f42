#include "model/familymark.h"

#include "interfaces/ifamilyidentity.h"

namespace tarq {

FamilyMark FamilyMark::of(IUnknown* family) {
    if (family == nullptr) return {};
    const Ref<IUnknown> held(family);
    // Numbers give odd marks, addresses of objects, which are even, give even ones.
    if (const auto identity = held.query<IFamilyIdentity>()) return FamilyMark(2 * identity->familyNumber() + 1);
    const Ref<IUnknown> canonical = held.query<IUnknown>();
    return FamilyMark(reinterpret_cast<std::uintptr_t>(canonical ? canonical.get() : family));
}

}  // namespace tarq
