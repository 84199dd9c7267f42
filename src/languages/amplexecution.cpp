#include "languages/amplexecution.h"

#include <utility>

#include "frame/result.h"
#include "languages/amplfailures.h"
#include "languages/amplrun.h"
#include "parameters/inputfile.h"
#include "parameters/profile.h"
#include "platform/filecheck.h"
#include "platform/programsearch.h"
#include "platform/temporaryfile.h"

namespace tarq {
namespace {

/// The translator starts the driver in its own way, so a place that only we know is spelled out.
std::string solverName(const std::string& location, const std::string& found) {
    return checkReadable(location) == FileCheck::Readable ? location : found;
}

std::string optionLine(const char* name, const std::string& value) {
    return std::string("option ") + name + " '" + value + "';\n";
}

}  // namespace

Outcome executeAmplModel(const std::string& modelFile, const AmplLocations& locations, const ParameterTable& parameters,
                         LanguageTarget& target) {
    const std::string translator = findProgram(locations.translator);
    const std::string driver = findProgram(locations.driver);
    TARQ_TRY(checkInputFile(translator, ampl::aboutTranslator));
    TARQ_TRY(checkInputFile(driver, "TARQAMPL.EXE"));
    TARQ_TRY(checkInputFile(modelFile, ampl::aboutModelFile));

    const TemporaryFile profile;
    if (!profile.isMade() || !writeProfile(profile.name(), parameters).isOk()) {
        return {status::temporaryFile, "Unable to create temporary profile."};
    }
    TemporaryFile base;
    if (!base.isMade()) return ampl::noCommandFile();
    const std::string commandFile = base.companion(".acf");
    base.removeFile();
    const std::string commands = "reset;\nreset options;\n" +
                                 optionLine("solver", solverName(locations.driver, driver)) +
                                 optionLine("LocationOfTARQProfile", profile.name()) +
                                 optionLine("LocationOfTARQDLL", locations.engine) + "include '" + modelFile + "';\n";
    TARQ_TRY(writeAmplCommands(commandFile, commands));

    TARQ_ASSIGN(std::string output, runAmplTranslator(translator, {"-P", commandFile}, target,
                                                      {status::externalProcess, "Error reading AMPL output."}));
    target.setOutput(std::move(output));
    return {};
}

}  // namespace tarq
