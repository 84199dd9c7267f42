#include "model/parametersetting.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "files/modelinput.h"
#include "files/output.h"
#include "model/modelobject.h"
#include "model/parameterlist.h"
#include "printing/text.h"
#include "tarq/frame/wholenumber.h"

namespace tarq::command {

namespace {

std::optional<Variant> realNumber(std::string_view text) {
    double number = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end || !std::isfinite(number)) return std::nullopt;
    return Variant(number);
}

/// The value that a text means for a parameter; nothing when it means none.
std::optional<Variant> valueOf(ITARQModel& model, const std::string& name, std::string_view text) {
    Variant present;
    const Kind kind = model.get_Parameter(name, &present).isOk() ? present.kind() : Kind::Text;
    if (kind == Kind::Double) return realNumber(text);
    if (kind == Kind::Long) {
        const std::optional<std::int32_t> number = wholeNumberIn(text);
        return number ? std::optional(Variant(*number)) : std::nullopt;
    }
    if (lowerCase(name) != directionName) return Variant(text);
    const std::string direction = lowerCase(text);
    return direction == "min" || direction == "max" ? std::optional(Variant(direction)) : std::nullopt;
}

/// What the user can do about a value that was refused.
std::string parameterHint(ITARQModel& model, const std::string& name, std::string_view text, Status status) {
    const std::vector<Parameter> parameters = readParameters(model);
    const Parameter* parameter = findParameter(parameters, name);
    if (parameter == nullptr) {
        Variant ignored;
        if (model.get_Parameter(name, &ignored).isOk())
            return fmt::format("{} is a result of a run and can't be set.", name);
        return suggestion(parameters, name);
    }
    if (parameter->name == directionName) return fmt::format("{} takes min or max.", directionName);
    if (status != status::wrongKind) return fmt::format("{} takes {}.", parameter->name, limitsText(*parameter));
    return fmt::format("{} takes {} number, {}.{}", parameter->name, parameter->type == Kind::Long ? "a whole" : "a",
                       limitsText(*parameter),
                       text.find(',') == std::string_view::npos ? "" : " The decimal mark is a point.");
}

void setParameter(ITARQModel& model, const std::string& assignment) {
    const std::size_t sign = assignment.find('=');
    const std::string name = assignment.substr(0, sign);
    const std::string text = assignment.substr(sign + 1);
    const std::optional<Variant> value = valueOf(model, name, text);
    const Status status = value ? model.put_Parameter(name, *value) : status::wrongKind;
    if (!status.failed()) return;
    const std::string complaint = value ? lastErrorText(status) : "It takes no such value.";
    throw Failure(
        ExitCode::WrongUsage,
        fmt::format("--set {}: {}\n{}", printable(assignment), complaint, parameterHint(model, name, text, status)),
        status);
}

void readProfile(ITARQModel& model, const std::string& file) {
    const Status status = model.ReadProfile(file);
    if (!status.failed()) return;
    const std::string complaint = lastErrorText(status);
    if (status == status::fileAccess) throw cannotRead(printable(file), reasonNotReadable(file), status);
    throw Failure(ExitCode::InputRejected, fmt::format("--profile {}: {}", printable(file), complaint), status);
}

}  // namespace

void setParameters(ITARQModel& model, const std::vector<ParameterSource>& sources) {
    for (const ParameterSource& source : sources) {
        source.isProfile ? readProfile(model, source.text) : setParameter(model, source.text);
    }
}

void writeProfile(ITARQModel& model, const std::string& file) {
    writeOutput(file, [&](const std::string& path) { return model.WriteProfile(path); });
}

}  // namespace tarq::command
