// Private interfaces: what the component's own objects offer each other besides the published ones.
#pragma once

#include "tarq/frame/object.h"

namespace tarq {

/// Base of an interface that tells directly what a published one tells piece by piece.
class IOwnPart : public IUnknown {
public:
    /// The published interface of which this tells.
    virtual const IUnknown* published() const = 0;

protected:
    ~IOwnPart() = default;
};

/// The private interface `Part` that tells of the very interface in hand, else none. A client's object may have that
/// interface of its own and an object of ours inside, which then answers for itself.
template <class Part, class Published>
[[nodiscard]] Ref<Part> ownPartOf(const Ref<Published>& object) {
    Ref<Part> part = object.template query<Part>();
    return part && part->published() == object.get() ? part : Ref<Part>();
}

}  // namespace tarq
