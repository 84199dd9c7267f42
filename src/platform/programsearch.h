// Where the programs lie that are started from here.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace tarq {

/// The file that a location names. One with a directory is that file. A plain name is looked for in each folder of PATH
/// in order (empty ones left out), then among the component's own programs. In each place NAME.exe, in any case, stands
/// for NAME where the literal file isn't there; only regular files count. Where nothing is found so, NAME.exe stands
/// for NAME in any case of its letters. Where still nothing is found the location itself is the answer. The environment
/// is asked anew each time.
[[nodiscard]] std::string findProgram(const std::string& location);

/// What another search than the component's differs in.
struct ProgramSearch {
    bool (*counts)(const std::filesystem::path&);  ///< whether a path is a program
    std::span<const char* const> ownFolders;       ///< those behind PATH, seen from ownDirectory
};
/// The same for another search; nothing where nothing is found.
[[nodiscard]] std::optional<std::string> findProgram(const std::string& location, const ProgramSearch& search);

/// The file of this very name among the component's own programs alone, which lie beside its library, in ../bin and in
/// ../libexec/tarq; the name where it isn't there.
[[nodiscard]] std::string findOwnProgram(const std::string& name);

}  // namespace tarq
