// CTARQResSetEnum: walks selected rows of a family.
#pragma once

#include <string_view>

#include "indexed/families/ctarqrcsenumbase.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqresset.h"
#include "tarq/interfaces/itarqressetenum.h"

namespace tarq {

class CTARQResSetEnum final
    : public CTARQRCSEnumBase<CTARQResSetEnum, ITARQResSetEnum, ITARQResSet, classid::TARQResSetEnum> {
public:
    static constexpr std::string_view notInitialized = "TARQResSetEnum is not initialized.";
};

}  // namespace tarq
