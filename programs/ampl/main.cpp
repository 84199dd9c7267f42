// ampl: AMPL text, within what it shares with GNU MathProg, to stubs and solvers by way of GLPK's translator.

#include <cstdlib>
#include <exception>

#include "commandline.h"
#include "console.h"
#include "interpreter.h"
#include "supervisor.h"

namespace {

using namespace tarq::translator;

int translate(const CommandLine& line, const std::string& folder) {
    try {
        Interpreter(folder).run(line.file, line.stub);
        return EXIT_SUCCESS;
    } catch (const Failure& failure) {
        showLine(failure.what());
    } catch (const std::exception& failure) {
        showLine(failure.what());
    }
    return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
    int exitCode = EXIT_FAILURE;
    const auto line = parseCommandLine(argc, argv, exitCode);
    if (!line) return exitCode;
    // A stub of an earlier run must not be taken for one of this.
    if (!line->stub.empty()) removeStub(line->stub);
    return supervise([&](const std::string& folder) { return translate(*line, folder); });
}
