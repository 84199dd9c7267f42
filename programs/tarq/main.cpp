// tarq: solves, converts and shows model files and explains solver parameters and objects from the command line.

#include <exception>

#include "commandline.h"
#include "commands/commands.h"
#include "printing/console.h"

namespace {

using namespace tarq::command;

ExitCode run(int argc, const char* const* argv) {
    const CommandLine line = parseCommandLine(argc, argv);
    switch (line.action) {
        case Action::Solve:
            return solve(line.solve);
        case Action::Convert:
            return convert(line.convert);
        case Action::Show:
            return showModel(line.show);
        case Action::Parameters:
            return explainParameters(line.parameters);
        case Action::Describe:
            return describe(line.describe);
        case Action::Version:
            return showVersion(line.engine);
        case Action::None:
            break;
    }
    return line.exitCode;
}

}  // namespace

int main(int argc, char** argv) {
    fillStandardStreams();
    try {
        return static_cast<int>(run(argc, argv));
    } catch (const Failure& failure) {
        return static_cast<int>(show(failure));
    } catch (const std::bad_alloc&) {
        showMessage("out of memory");
    } catch (const std::exception& failure) {
        showMessage(failure.what());
    }
    return static_cast<int>(ExitCode::EngineFailed);
}
