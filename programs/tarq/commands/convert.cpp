#include "commands/commands.h"
#include "files/format.h"
#include "files/modelinput.h"
#include "files/output.h"
#include "model/modelobject.h"

namespace tarq::command {

namespace {

/// What the user can do about a model that a format doesn't hold.
std::string advice(Status status, const ConvertOptions& options) {
    const bool isAboutNames = status == status::badColumnName || status == status::badRowName;
    if (isAboutNames && options.rename) return {};
    if (isAboutNames) return "--rename gives every column and row a short name; --to triplet takes any name.";
    if (status == status::componentFailure) return "--to mps and --to triplet hold rows with two bounds.";
    return {};
}

}  // namespace

ExitCode convert(const ConvertOptions& options) {
    const InputFormat from = chooseInputFormat(options.input, options.from, "--from");
    const TARQFileFormatType to = chooseOutputFormat(options.output, options.to, "--to");
    const Ref<ITARQModel> model = makeModel();
    readModel(*model, options.input, from, options.language);
    showReadingNotes(*model);
    if (options.rename) {
        if (const Status renamed = model->AutoRenameVariables(); renamed.failed()) return ExitCode::EngineFailed;
    }
    writeOutput(
        options.output, [&](const std::string& path) { return model->WriteModel(path, to); },
        [&](Status status) { return advice(status, options); });
    return ExitCode::Success;
}

}  // namespace tarq::command
