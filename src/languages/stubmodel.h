// The model that a stub program tells, checked word by word and put into a store.
#pragma once

#include "frame/status.h"
#include "languages/stubanswer.h"
#include "model/modeltarget.h"

namespace tarq {

/// Reads the answer to "read" (see stubprotocol.h) and replaces the target's model by what it tells, with the direction
/// as the parameter "xminmx".
/// 0x80041023 when the answer ends before the sizes, 0x80041021 for a model that is nonlinear or has several
/// objectives, 0x8004101D for an answer that ends or goes wrong later: the target is as it was. A name that is taken is
/// the store's failure: the target then holds the records before it. `source` is left in the middle of its bytes where
/// the answer isn't worth reading on.
[[nodiscard]] Outcome receiveStubModel(ByteSource source, ModelTarget& target);

}  // namespace tarq
