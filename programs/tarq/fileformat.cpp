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

Failure unknownFormat(std::string text) {
    return {ExitCode::WrongUsage, fmt::format("{}\nThe formats are {}.", text, formatList)};
}

}  // namespace

std::string_view formatName(TARQFileFormatType format) { return formats[static_cast<std::size_t>(format)].name; }

std::optional<Failure> chooseFormat(const std::string& file, const std::string& name, std::string_view option,
                                    TARQFileFormatType& format) {
    const bool named = !name.empty();
    if (!named && file == "-") return unknownFormat(fmt::format("standard input and output need {}.", option));
    const std::string wanted = lowerCase(named ? name : std::filesystem::path(file).extension().string());
    for (const FormatRow& row : formats) {
        if (wanted != (named ? row.name : row.extension)) continue;
        format = row.format;
        return std::nullopt;
    }
    if (named) return unknownFormat(fmt::format("{} {}: there is no such format.", option, printable(name)));
    return unknownFormat(fmt::format("{}: the extension tells no format; name it with {}.", printable(file), option));
}

std::string shownName(const std::string& file, std::string_view stream) {
    return file == "-" ? std::string(stream) : printable(file);
}

}  // namespace tarq::command
