#include <fmt/format.h>

#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "commands/commands.h"
#include "model/modelobject.h"
#include "model/parameterlist.h"
#include "model/parametersetting.h"
#include "printing/console.h"
#include "printing/parameterreport.h"
#include "printing/text.h"

namespace tarq::command {

namespace {

/// Why the page couldn't be shown, and what to do about it.
std::string explained(Status status) {
    constexpr std::string_view otherwise =
        "\n'tarq parameters --write FILE' makes a profile to be changed with any editor.";
    std::string text = "the page can't be shown: ";
    if (status == status::libraryNotFound || status == status::entryPointsMissing) {
        text += "its library libtarqpage.so, which lies beside libtarqcom.so, is missing or can't be loaded.";
    } else if (status == status::propertyPage) {
        text +=
            "no window could be opened.\nThat takes a display: set DISPLAY or WAYLAND_DISPLAY to one that you may use, "
            "as 'ssh -X' does from another machine.\nIt also takes Qt 6, on Debian the package libqt6widgets6, and the "
            "program libexec/tarq/tarq-page.";
    } else {
        text += lastErrorText(status) + ".";
    }
    return text.append(otherwise);
}

/// Has a person change the parameters; `applied` is then whether they have applied anything. EngineFailed when the page
/// can't be shown.
void showPage(ITARQModel& model, bool& applied) {
    const Ref<IPropertyPage> page = createObject<IPropertyPage>("tarqprop1");
    std::int32_t answer = 0;
    const Status status = page ? page->Show(&model, &answer) : status::classNotAvailable;
    applied = answer != 0;
    if (status.failed()) throw Failure(ExitCode::EngineFailed, explained(status), status);
}

/// Writes a profile, or sends it to standard output: what a person has chosen in minutes isn't to be lost.
void keepProfile(ITARQModel& model, const std::string& file) {
    try {
        writeProfile(model, file);
    } catch (const Failure& failure) {
        if (file == "-") throw;
        (void)show(failure);
        writeProfile(model, "-");
        throw Failure(failure.code, "the profile went to standard output instead.");
    }
}

/// Has a person change a profile on the parameter page: reads `file` where it is there, shows the page, and writes the
/// profile anew where the person has applied something. "-" starts from the defaults and writes to standard output.
ExitCode editProfile(ITARQModel& model, const std::string& file) {
    std::error_code ignored;
    if (file != "-" && std::filesystem::exists(file, ignored)) {
        setParameters(model, {{.isProfile = true, .text = file}});
    }
    bool applied = false;
    std::optional<Failure> broken;
    try {
        showPage(model, applied);
    } catch (const Failure& failure) {
        broken = failure;
    }
    if (applied) keepProfile(model, file);
    if (broken) throw *broken;
    return ExitCode::Success;
}

}  // namespace

ExitCode explainParameters(const ParametersOptions& options) {
    const Ref<ITARQModel> model = makeModel();
    if (options.page) return editProfile(*model, options.pageProfile);
    if (!options.profile.empty()) {
        writeProfile(*model, options.profile);
        return ExitCode::Success;
    }
    const std::vector<Parameter> all = readParameters(*model);
    if (const Parameter* parameter = findParameter(all, options.name); parameter != nullptr) {
        return writeResult(parameterReport(*parameter, options.json));
    }
    const std::vector<Parameter> found = options.name.empty() ? all : parametersWith(all, options.name);
    if (!found.empty()) return writeResult(parameterReport(found, options.json));
    throw Failure(ExitCode::WrongUsage, fmt::format("there is no parameter '{}', and no description speaks of it. {}",
                                                    printable(options.name), suggestion(all, options.name)));
}

}  // namespace tarq::command
