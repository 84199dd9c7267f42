// Names as AMPL spells them.
#pragma once

#include <string>
#include <string_view>

namespace tarq::translator {

/// The name of a column or row as AMPL spells it, from what GLPK calls it: text among the subscripts stands in quotes
/// always, so that flow[a,3] becomes flow['a',3]. A name that GLPK has cut at its limit of 255 bytes stays as it is.
[[nodiscard]] std::string amplName(std::string_view name);

/// The name without its subscripts.
[[nodiscard]] std::string_view familyName(std::string_view name);

}  // namespace tarq::translator
