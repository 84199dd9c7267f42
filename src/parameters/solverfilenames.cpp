#include "parameters/solverfilenames.h"

#include <array>
#include <cstddef>
#include <string>

#include "parameters/parameterrows.h"

namespace tarq {
namespace {

struct SolverFile {
    std::string_view row;
    std::string_view suffix;
};

constexpr std::array solverFiles{
    SolverFile{"xfnlps", ".lps"}, SolverFile{"xfnips", ".ips"}, SolverFile{"xfnsta", ".sta"},
    SolverFile{"xfnlog", ".log"}, SolverFile{"xfnmsg", ".msg"}, SolverFile{"xfnmps", ".mps"},
    SolverFile{"xfnpro", ".pro"},
};

constexpr std::size_t longestName = 250;  // with a suffix it stays within the 256 characters of the rows
constexpr std::string_view illegalCharacters = "*?<>|";

}  // namespace

Outcome generateFileNames(ParameterTable& table, std::string_view name) {
    if (name.size() > longestName) return {status::fileNameRejected, "Filename too long."};
    if (name.find_first_of(illegalCharacters) != std::string_view::npos) {
        return {status::fileNameRejected, "Filename contains illegal characters."};
    }
    for (const SolverFile& file : solverFiles) {
        const std::string fileName = std::string(name).append(file.suffix);
        static_cast<void>(table.setString(parameterIndex(file.row), fileName));
    }
    return {};
}

}  // namespace tarq
