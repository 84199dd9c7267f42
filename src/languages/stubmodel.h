// The model that a stub program tells, checked word by word and put into a store.
#pragma once

#include "languages/stubanswer.h"
#include "model/modeltarget.h"
#include "tarq/frame/status.h"

namespace tarq {

/// Reads the answer to "read" (see stubprotocol.h) and replaces the target's model by what it tells, with the direction
/// as the parameter "xminmx".
/// temporaryFile when the answer ends before the sizes, modelRejected for a model that is nonlinear or has several
/// objectives, externalProcess for an answer that ends or goes wrong later: the target is as it was. A name that is
/// taken is the store's failure: the target then holds the records before it. `source` is left in the middle of its
/// bytes where the answer isn't worth reading on.
[[nodiscard]] Outcome receiveStubModel(ByteSource source, ModelTarget& target);

}  // namespace tarq
