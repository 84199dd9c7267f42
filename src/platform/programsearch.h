// Where the programs lie that the component starts.
#pragma once

#include <string>

namespace tarq {

/// The file that a location names. One with a directory is that file. A plain name is looked for in each folder of PATH
/// in order (empty ones left out), then among the component's own programs. In each place NAME.exe, in any case, stands
/// for NAME where the literal file isn't there; only regular files count. Where nothing is found the location itself is
/// the answer. The environment is asked anew each time.
[[nodiscard]] std::string findProgram(const std::string& location);

/// The same among the component's own programs alone, which lie beside its library, in ../bin and in
/// ../libexec/tarq.
[[nodiscard]] std::string findOwnProgram(const std::string& name);

}  // namespace tarq
