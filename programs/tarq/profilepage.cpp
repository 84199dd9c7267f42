#include "profilepage.h"

#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "console.h"
#include "failure.h"
#include "lasterror.h"
#include "parametersetting.h"

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

/// Shows the page; `applied` is then whether the person has applied anything.
std::optional<Failure> showPage(ITARQModel& model, bool& applied) {
    const Ref<IPropertyPage> page = createObject<IPropertyPage>("tarqprop1");
    std::int32_t answer = 0;
    const Status status = page ? page->Show(&model, &answer) : status::classNotAvailable;
    applied = answer != 0;
    if (!status.failed()) return std::nullopt;
    return Failure{ExitCode::EngineFailed, explained(status), status};
}

}  // namespace

ExitCode editProfile(ITARQModel& model, const std::string& file) {
    std::error_code ignored;
    if (file != "-" && std::filesystem::exists(file, ignored)) {
        if (const auto failure = setParameters(model, {{.isProfile = true, .text = file}})) return show(*failure);
    }
    bool applied = false;
    const auto broken = showPage(model, applied);
    if (applied) {
        if (const auto failure = writeProfile(model, file)) {
            // What a person has chosen in minutes isn't to be lost.
            const ExitCode code = show(*failure);
            if (file != "-" && !writeProfile(model, "-")) showMessage("the profile went to standard output instead.");
            return code;
        }
    }
    return broken ? show(*broken) : ExitCode::Success;
}

}  // namespace tarq::command
