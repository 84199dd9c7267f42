// What AMPL tells its solver: by the command line and by the environment.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarq::driver {

/// "xmxmin=5": a parameter as it was written.
struct Assignment {
    std::string name;
    std::string value;
};

struct DriverOptions {
    enum class Task { Solve, ShowVersion, ListParameters, WrongUsage };

    Task task = Task::WrongUsage;
    std::string wrong;  ///< what is wrong with the usage
    std::string stub;
    bool calledByAmpl = false;            ///< nothing is printed then
    std::string engine;                   ///< empty for the component's own
    std::string profile;                  ///< empty for none
    std::vector<Assignment> assignments;  ///< in the order in which they act
};

/// Splits `text` at blanks outside of quotes, of which there are two kinds.
[[nodiscard]] std::vector<std::string> splitWords(std::string_view text);

[[nodiscard]] DriverOptions readOptions(int count, const char* const* arguments);

}  // namespace tarq::driver
