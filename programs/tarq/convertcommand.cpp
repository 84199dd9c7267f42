#include "convertcommand.h"

#include <string>

#include "fileformat.h"
#include "modelinput.h"
#include "modelobject.h"
#include "modeloutput.h"
#include "readingnotes.h"

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
    InputFormat from;
    TARQFileFormatType to{};
    if (const auto failure = chooseFormat(options.input, options.from, "--from", from)) return show(*failure);
    if (const auto failure = chooseFormat(options.output, options.to, "--to", to)) return show(*failure);
    const Ref<ITARQModel> model = makeModel();
    if (!model) return ExitCode::EngineFailed;
    if (const auto failure = readModel(*model, options.input, from, options.language)) return show(*failure);
    showReadingNotes(*model);
    if (options.rename) {
        if (const Status renamed = model->AutoRenameVariables(); renamed.failed()) return ExitCode::EngineFailed;
    }
    const auto failure = writeOutput(
        options.output, [&](const std::string& path) { return model->WriteModel(path, to); },
        [&](Status status) { return advice(status, options); });
    return failure ? show(*failure) : ExitCode::Success;
}

}  // namespace tarq::command
