#include "parameters/profile.h"

#include <string_view>
#include <utility>

#include "frame/result.h"
#include "parameters/filefailures.h"
#include "parameters/parameteraccess.h"
#include "parameters/parameterrows.h"
#include "parameters/profilescanner.h"
#include "platform/localtime.h"
#include "platform/outputfile.h"
#include "platform/wholefile.h"

namespace tarq {
namespace {

Outcome syntaxFailure(const ProfileScanner& scanner, const std::string& name) {
    std::string text = "Syntax error in line '" + scanner.line() + "'";
    if (!name.empty()) text += " Near parameter: " + name;
    return {status::profileFailure, std::move(text)};
}

/// What a refused assignment means to the reader of the profile.
Outcome storeFailure(Status failure, const ProfileScanner& scanner, const std::string& name, const std::string& value) {
    const auto inLine = [&](std::string_view before, std::string_view behind) {
        return Outcome(failure, std::string(before) + "'" + name + "'" + std::string(behind) +
                                    " Error in line: " + scanner.line());
    };
    if (failure == status::unknownParameter) return inLine("Parametername ", " does not exist!");
    if (failure == status::wrongKind) return inLine("Type mismatch for parameter ", "!");
    if (failure == status::valueOutOfRange) return inLine("Value for parameter ", " is out of range!");
    if (failure == status::textTooLong) return {failure, "String is too long: " + value};
    return {status::profileFailure, "Failure while processing profile."};
}

}  // namespace

Outcome readProfile(const std::string& fileName, ParameterTable& parameters, double infinity) {
    TARQ_TRY(checkFileName(fileName));
    const std::optional<std::string> text = readWholeFile(fileName);
    return text ? readProfileText(*text, parameters, infinity) : fileFailure();
}

Outcome readProfileText(std::string_view text, ParameterTable& parameters, double infinity) {
    ProfileScanner scanner(text);
    std::string name;
    std::string value;
    while (!scanner.atEnd()) {
        if (!scanner.readName(name) || !scanner.readValue(value)) return syntaxFailure(scanner, name);
        const Outcome stored = writeParameter(parameters, name, Variant(value), infinity);
        if (!stored.isOk()) return storeFailure(stored.status(), scanner, name, value);
    }
    return {};
}

Outcome writeProfile(const std::string& fileName, const ParameterTable& parameters) {
    OutputFile file(fileName);
    if (!file.isOpen()) return fileFailure();
    file.write("* TARQ profile written by TARQ Component at ");
    file.write(localTimeStamp());
    file.write('\n');
    for (int row = 0; row < parameterCount; ++row) {
        const ParameterRow& about = parameterRows()[static_cast<std::size_t>(row)];
        const std::string_view quote = about.type == ParameterType::String ? "'" : "";
        file.write(about.name);
        file.write(" = ");
        file.write(quote);
        file.write(parameters.valueText(row));
        file.write(quote);
        file.write('\n');
    }
    return file.close() ? Outcome() : fileFailure();
}

}  // namespace tarq
