// CTARQVarSetEnum: walks selected columns of a family.
#pragma once

#include <string_view>

#include "indexed/families/ctarqrcsenumbase.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqvarset.h"
#include "tarq/interfaces/itarqvarsetenum.h"

namespace tarq {

class CTARQVarSetEnum final
    : public CTARQRCSEnumBase<CTARQVarSetEnum, ITARQVarSetEnum, ITARQVarSet, classid::TARQVarSetEnum> {
public:
    static constexpr std::string_view notInitialized = "TARQVarSetEnum is not initialized.";
};

}  // namespace tarq
