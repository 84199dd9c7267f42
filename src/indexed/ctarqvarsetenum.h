// CTARQVarSetEnum: walks selected columns of a family.
#pragma once

#include <string_view>

#include "indexed/ctarqrcsenumbase.h"
#include "interfaces/classids.h"
#include "interfaces/itarqvarset.h"
#include "interfaces/itarqvarsetenum.h"

namespace tarq {

class CTARQVarSetEnum final
    : public CTARQRCSEnumBase<CTARQVarSetEnum, ITARQVarSetEnum, ITARQVarSet, classid::TARQVarSetEnum> {
public:
    static constexpr std::string_view notInitialized = "TARQVarSetEnum is not initialized.";
};

}  // namespace tarq
