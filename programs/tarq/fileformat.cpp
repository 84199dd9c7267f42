#include "fileformat.h"

#include <fmt/format.h>

#include <filesystem>

#include "suggestion.h"

namespace tarq::command {

namespace {

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

Failure unknownFormat(std::string text) {
    return {ExitCode::WrongUsage,
            fmt::format("{}\nThe formats are {}; for reading also {}.", text, formatList, readOnlyList)};
}

}  // namespace

std::string_view formatName(TARQFileFormatType format) { return formats[static_cast<std::size_t>(format)].name; }

std::optional<Failure> chooseFormat(const std::string& file, const std::string& name, std::string_view option,
                                    InputFormat& format) {
    const bool named = !name.empty();
    if (!named && file == "-") return unknownFormat(fmt::format("standard input and output need {}.", option));
    const std::string wanted = lowerCase(named ? name : std::filesystem::path(file).extension().string());
    for (const FormatRow& row : formats) {
        if (wanted != (named ? row.name : row.extension)) continue;
        format.file = row.format;
        return std::nullopt;
    }
    for (const Language& language : languages()) {
        if (wanted.empty() || wanted != (named ? language.name : language.extension)) continue;
        format.language = &language;
        return std::nullopt;
    }
    if (named) return unknownFormat(fmt::format("{} {}: there is no such format.", option, printable(name)));
    return unknownFormat(fmt::format("{}: the extension tells no format; name it with {}.", printable(file), option));
}

std::optional<Failure> chooseFormat(const std::string& file, const std::string& name, std::string_view option,
                                    TARQFileFormatType& format) {
    InputFormat chosen;
    if (auto failure = chooseFormat(file, name, option, chosen)) return failure;
    if (chosen.language != nullptr) {
        return unknownFormat(
            fmt::format("{}: a model can't be written in {}.", printable(file), chosen.language->name));
    }
    format = chosen.file;
    return std::nullopt;
}

std::string shownName(const std::string& file, std::string_view stream) {
    return file == "-" ? std::string(stream) : printable(file);
}

}  // namespace tarq::command
