#include "solutionfile.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "solutiontable.h"
#include "statusnames.h"

namespace tarq::command {

namespace {

using Json = nlohmann::ordered_json;
using Side = SolutionTable::Side;

bool isCsv(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return extension == ".csv";
}

}  // namespace

std::string csvField(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    std::string field = "\"";
    for (const char character : text) field.append(character == '"' ? 2U : 1U, character);
    return field + '"';
}

SolutionFile::SolutionFile(const std::string& path) : path_(path), file_(std::fopen(path.c_str(), "wb"), std::fclose) {
    if (file_ == nullptr) failure_ = std::strerror(errno);
}

void SolutionFile::put(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), file_.get()) != text.size() && failure_.empty()) {
        failure_ = std::strerror(errno);
    }
}

void SolutionFile::write(ITARQModel& model, const RunResult& result) {
    if (isCsv(path_)) {
        writeCsv(model, result.solution());
    } else {
        writeJson(model, result.solution());
    }
    if (std::fclose(file_.release()) != 0 && failure_.empty()) failure_ = std::strerror(errno);
}

void SolutionFile::writeCsv(ITARQModel& model, SolutionKind kind) {
    put("kind,index,name,value,dual,status\n");
    for (const auto& [side, word] : {std::pair{Side::Columns, "column"}, std::pair{Side::Rows, "row"}}) {
        const SolutionTable table(model, side, kind);
        for (std::int32_t number = 1; number <= table.size(); ++number) {
            const SolutionLine line = table.line(number);
            put(fmt::format("{},{},{},{},{},{}\n", word, number, csvField(line.name), line.value, line.dual,
                            nameOf(line.status)));
        }
    }
}

void SolutionFile::writeJson(ITARQModel& model, SolutionKind kind) {
    const auto writeList = [&](Side side, std::string_view dualName) {
        const SolutionTable table(model, side, kind);
        for (std::int32_t number = 1; number <= table.size(); ++number) {
            const SolutionLine line = table.line(number);
            Json row{{"index", number}, {"name", line.name}, {"value", line.value}};
            row[std::string(dualName)] = line.dual;
            row["status"] = nameOf(line.status);
            put(number == 1 ? "\n    " : ",\n    ");
            put(row.dump(-1, ' ', false, Json::error_handler_t::replace));
        }
        put(table.size() == 0 ? "]" : "\n  ]");
    };
    put("{\n  \"columns\": [");
    writeList(Side::Columns, "reducedCost");
    put(",\n  \"rows\": [");
    writeList(Side::Rows, "dual");
    put("\n}\n");
}

}  // namespace tarq::command
