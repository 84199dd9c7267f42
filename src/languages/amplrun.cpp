#include "languages/amplrun.h"

#include <utility>

#include "languages/amplfailures.h"
#include "platform/childprocess.h"
#include "platform/outputfile.h"

namespace tarq {

Outcome writeAmplCommands(const std::string& fileName, std::string_view commands) {
    OutputFile file(fileName);
    if (!file.isOpen()) return ampl::noCommandFile();
    file.write(commands);
    return file.close() ? Outcome() : ampl::noCommandFile();
}

Result<std::string> runAmplTranslator(const std::string& program, const std::vector<std::string>& arguments,
                                      const LanguageTarget& target, Outcome readFailure) {
    std::string output;
    switch (runProgram(program, arguments, target.outputLimit() - 1, output)) {
        case RunOutcome::Done:
            return output;
        case RunOutcome::NoPipe:
            return ampl::ioError();
        case RunOutcome::NotStarted:
            return ampl::notStarted();
        case RunOutcome::ReadFailed:
            break;
    }
    return readFailure;
}

}  // namespace tarq
