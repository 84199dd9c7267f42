#include <fmt/format.h>

#include "commands/commands.h"
#include "model/library.h"
#include "printing/console.h"
#include "printing/libraryreport.h"
#include "printing/text.h"

namespace tarq::command {

ExitCode describe(const DescribeOptions& options) {
    if (options.name.empty()) return writeResult(libraryReport(options.json));
    if (const auto report = libraryReport(options.name, options.json)) return writeResult(*report);
    const std::string wanted = options.name.substr(options.name.rfind('.') + 1);
    throw Failure(
        ExitCode::WrongUsage,
        fmt::format("there is nothing named '{}'. {}", printable(options.name),
                    suggestion(allNames(), wanted, "'tarq describe' lists classes, interfaces and enumerations.")));
}

}  // namespace tarq::command
