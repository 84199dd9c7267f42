#include "parametersetting.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "console.h"
#include "lasterror.h"
#include "modelinput.h"
#include "modeloutput.h"
#include "parameterlist.h"
#include "suggestion.h"

namespace tarq::command {

namespace {

constexpr std::string_view directionName = "xminmx";

template <class Number>
std::optional<Variant> wholeNumber(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end || !std::isfinite(static_cast<double>(number))) return std::nullopt;
    return Variant(number);
}

/// The value that a text means for a parameter; nothing when it means none.
std::optional<Variant> valueOf(ITARQModel& model, const std::string& name, std::string_view text) {
    Variant present;
    const Kind kind = model.get_Parameter(name, &present).isOk() ? present.kind() : Kind::Text;
    if (kind == Kind::Long) return wholeNumber<std::int32_t>(text);
    if (kind == Kind::Double) return wholeNumber<double>(text);
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
    return fmt::format("{} takes {} number, {}.{}", parameter->name,
                       parameter->type == Parameter::Type::Long ? "a whole" : "a", limitsText(*parameter),
                       text.find(',') == std::string_view::npos ? "" : " The decimal mark is a point.");
}

std::optional<Failure> setParameter(ITARQModel& model, const std::string& assignment) {
    const std::size_t sign = assignment.find('=');
    const std::string name = assignment.substr(0, sign);
    const std::string text = assignment.substr(sign + 1);
    const std::optional<Variant> value = valueOf(model, name, text);
    const Status status = value ? model.put_Parameter(name, *value) : status::wrongKind;
    if (!status.failed()) return std::nullopt;
    const std::string complaint = value ? lastErrorText(status) : "It takes no such value.";
    return Failure{
        ExitCode::WrongUsage,
        fmt::format("--set {}: {}\n{}", printable(assignment), complaint, parameterHint(model, name, text, status)),
        status};
}

std::optional<Failure> readProfile(ITARQModel& model, const std::string& file) {
    const Status status = model.ReadProfile(file);
    if (!status.failed()) return std::nullopt;
    const std::string complaint = lastErrorText(status);
    if (status == status::fileAccess) {
        return Failure{ExitCode::InputRejected,
                       fmt::format("{} can't be read: {}.", printable(file), reasonNotReadable(file)), status};
    }
    return Failure{ExitCode::InputRejected, fmt::format("--profile {}: {}", printable(file), complaint), status};
}

}  // namespace

std::optional<Failure> setParameters(ITARQModel& model, const std::vector<ParameterSource>& sources) {
    for (const ParameterSource& source : sources) {
        auto failure = source.isProfile ? readProfile(model, source.text) : setParameter(model, source.text);
        if (failure) return failure;
    }
    return std::nullopt;
}

std::optional<Failure> writeProfile(ITARQModel& model, const std::string& file) {
    return writeOutput(
        file, [&](const std::string& path) { return model.WriteProfile(path); }, [](Status) { return std::string(); });
}

}  // namespace tarq::command
