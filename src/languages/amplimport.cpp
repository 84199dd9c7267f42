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

Outcome checkDataFiles(const ValueList& list, std::vector<std::string>& names) {
    const ValueList::Walk walk = list.walk();
    for (const Variant& value : walk) {
        const Variant name = value.copyDereferenced();
        if (!name.isText()) return {status::invalidArgument, "Parameter for .dat filename is no string."};
        TARQ_TRY(checkInputFile(name.text(), fmt::format("{} '{}'", failuretext::aboutDataFile, name.text())));
        names.push_back(name.text());
    }
    return {};
}

std::string importCommands(const std::string& modelFile, const std::vector<std::string>& dataFiles) {
    std::string commands = "reset;\nmodel;\ninclude '" + modelFile + "';\n";
    if (!dataFiles.empty()) commands += "data;\n";
    for (const std::string& name : dataFiles) commands += "include '" + name + "';\n";
    return commands + "option auxfiles 'cr';\n";
}

/// The stub is the temporary file's name; the file itself has served once the translator has ended.
Outcome translate(const std::string& program, const std::string& commands, const LanguageTarget& target,
                  TemporaryFile& stub, std::string& output) {
    const std::string commandFile = stub.companion(".acf");
    TARQ_TRY(writeAmplCommands(commandFile, commands));
    for (const char* suffix : {".nl", ".col", ".row"}) (void)stub.companion(suffix);
    Outcome run = runAmplTranslator(program, {"-P", "-og" + stub.name(), commandFile}, target, ampl::ioError(), output);
    stub.removeFile();
    if (!run.isOk()) stub.keep();
    return run;
}

}  // namespace

Outcome readAmplModel(const std::string& modelFile, const ValueList& dataFiles, const std::string& translator,
                      LanguageTarget& target) {
    const std::string program = findProgram(translator);
    std::vector<std::string> dataNames;
    TARQ_TRY(checkInputFile(program, "AMPL.EXE"));
    TARQ_TRY(checkInputFile(modelFile, ".MOD file"));
    TARQ_TRY(checkDataFiles(dataFiles, dataNames));

    TemporaryFile stub;
    if (!stub.isMade()) return {status::temporaryFile, "Can't create teporary stub file."};
    std::string output;
    Outcome outcome = translate(program, importCommands(modelFile, dataNames), target, stub, output);
    if (!outcome.isOk()) return outcome;
    target.setOutput(output);
    if (checkInputFile(stub.name() + ".nl", "").isOk()) {
        outcome = readAmplStub(stub.name(), target);
        target.setOutput(std::move(output));  // the reading may have emptied it
    } else {
        outcome = {status::modelRejected, "Error in AMPL model."};
    }
    if (!outcome.isOk()) stub.keep();
    return outcome;
}

}  // namespace tarq
