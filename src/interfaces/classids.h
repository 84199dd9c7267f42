// Identifiers of the classes that clients can create.
#pragma once

#include "frame/object.h"

namespace tarq::classid {

inline constexpr Guid TARQModel{0x6E63F9A2, 0x6DA0, 0x4906, {0xAE, 0xB0, 0x26, 0x97, 0x43, 0xCF, 0xA7, 0x7B}};

}  // namespace tarq::classid
