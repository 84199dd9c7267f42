#include "languages/amplimport.h"

#include <fmt/format.h>

#include <utility>
#include <vector>

#include "frame/result.h"
#include "languages/amplfailures.h"
#include "languages/amplrun.h"
#include "languages/amplstub.h"
#include "parameters/inputfile.h"
#include "platform/programsearch.h"
#include "platform/temporaryfile.h"
#include "tarq/interfaces/failuretexts.h"

namespace tarq {
namespace {

/// The names of the data files, each a text and a file that can be read.
Result<std::vector<std::string>> checkDataFiles(const ValueList& list) {
    std::vector<std::string> names;
    const ValueList::Walk walk = list.walk();
    for (const Variant& value : walk) {
        const Variant name = value.copyDereferenced();
        if (!name.isText()) return Outcome(status::invalidArgument, "Parameter for .dat filename is no string.");
        TARQ_TRY(checkInputFile(name.text(), fmt::format("{} '{}'", failuretext::aboutDataFile, name.text())));
        names.push_back(name.text());
    }
    return names;
}

std::string importCommands(const std::string& modelFile, const std::vector<std::string>& dataFiles) {
    std::string commands = "reset;\nmodel;\ninclude '" + modelFile + "';\n";
    if (!dataFiles.empty()) commands += "data;\n";
    for (const std::string& name : dataFiles) commands += "include '" + name + "';\n";
    return commands + "option auxfiles 'cr';\n";
}

/// Has the translator write a stub; what it has said. The stub is the temporary file's name; the file itself has served
/// once the translator has ended.
Result<std::string> translate(const std::string& program, const std::string& commands, const LanguageTarget& target,
                              TemporaryFile& stub) {
    const std::string commandFile = stub.companion(".acf");
    TARQ_TRY(writeAmplCommands(commandFile, commands));
    for (const char* suffix : {".nl", ".col", ".row"}) (void)stub.companion(suffix);
    auto output = runAmplTranslator(program, {"-P", "-og" + stub.name(), commandFile}, target, ampl::ioError());
    stub.removeFile();
    if (!output.isOk()) stub.keep();
    return output;
}

}  // namespace

Outcome readAmplModel(const std::string& modelFile, const ValueList& dataFiles, const std::string& translator,
                      LanguageTarget& target) {
    const std::string program = findProgram(translator);
    TARQ_TRY(checkInputFile(program, ampl::aboutTranslator));
    TARQ_TRY(checkInputFile(modelFile, ampl::aboutModelFile));
    TARQ_ASSIGN(const std::vector<std::string> dataNames, checkDataFiles(dataFiles));

    TemporaryFile stub;
    if (!stub.isMade()) return {status::temporaryFile, "Can't create teporary stub file."};
    TARQ_ASSIGN(std::string output, translate(program, importCommands(modelFile, dataNames), target, stub));
    target.setOutput(output);
    Outcome outcome(status::modelRejected, "Error in AMPL model.");
    if (checkInputFile(stub.name() + ".nl", "").isOk()) {
        outcome = readAmplStub(stub.name(), target);
        target.setOutput(std::move(output));  // the reading may have emptied it
    }
    if (!outcome.isOk()) stub.keep();
    return outcome;
}

}  // namespace tarq
