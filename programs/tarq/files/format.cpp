#include "files/format.h"

#include <fmt/format.h>

#include <filesystem>
#include <limits>

#include "model/failure.h"
#include "printing/text.h"

namespace tarq::command {

namespace {

Status readMathProg(ITARQModel& model, const std::string& file, const std::vector<std::string>& dataFiles) {
    return model.ReadMathProgModel(file, dataFiles.empty() ? Variant::missing() : Variant(dataFiles.front()));
}

Status readAmpl(ITARQModel& model, const std::string& file, const std::vector<std::string>& dataFiles) {
    return model.ReadAMPLModel(file, ValueList({dataFiles.begin(), dataFiles.end()}));
}

Status readStub(ITARQModel& model, const std::string& file, const std::vector<std::string>& /*dataFiles*/) {
    return model.ReadAMPLStub(file);
}

Status readMpl(ITARQModel& model, const std::string& file, const std::vector<std::string>& /*dataFiles*/) {
    return model.ReadMPLModel(file);
}

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();
constexpr Language languages[] = {
    {"mathprog", ".mod", 1, false, readMathProg},
    {"ampl", "", anyNumber, false, readAmpl},
    {"nl", ".nl", 0, true, readStub},
    {"mpl", ".mpl", 0, false, readMpl},
};

struct FormatRow {
    TARQFileFormatType format;
    std::string_view name;
    std::string_view extension;
};

constexpr FormatRow formats[] = {
    {TARQFileFormatType::MPS, "mps", ".mps"},
    {TARQFileFormatType::Triplet, "triplet", ".tri"},
    {TARQFileFormatType::Lindo, "lindo", ".ltx"},
};
constexpr auto formatList = "mps (.mps), triplet (.tri) and lindo (.ltx)";
constexpr auto readOnlyList = "mathprog (.mod), ampl, nl (.nl) and mpl (.mpl)";

[[noreturn]] void refuse(std::string_view text) {
    throw Failure(ExitCode::WrongUsage,
                  fmt::format("{}\nThe formats are {}; for reading also {}.", text, formatList, readOnlyList));
}

}  // namespace

InputFormat chooseInputFormat(const std::string& file, const std::string& name, std::string_view option) {
    const bool named = !name.empty();
    if (!named && file == "-") refuse(fmt::format("standard input and output need {}.", option));
    const std::string wanted = lowerCase(named ? name : std::filesystem::path(file).extension().string());
    for (const FormatRow& row : formats) {
        if (wanted == (named ? row.name : row.extension)) return {.file = row.format};
    }
    for (const Language& language : languages) {
        if (!wanted.empty() && wanted == (named ? language.name : language.extension)) return {.language = &language};
    }
    if (named) refuse(fmt::format("{} {}: there is no such format.", option, printable(name)));
    refuse(fmt::format("{}: the extension tells no format; name it with {}.", printable(file), option));
}

TARQFileFormatType chooseOutputFormat(const std::string& file, const std::string& name, std::string_view option) {
    const InputFormat chosen = chooseInputFormat(file, name, option);
    if (chosen.language == nullptr) return chosen.file;
    refuse(fmt::format("{}: a model can't be written in {}.", printable(file), chosen.language->name));
}

}  // namespace tarq::command
