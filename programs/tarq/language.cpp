#include "language.h"

#include <limits>

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

constexpr std::size_t any = std::numeric_limits<std::size_t>::max();
constexpr Language rows[] = {
    {"mathprog", ".mod", 1, false, readMathProg},
    {"ampl", "", any, false, readAmpl},
    {"nl", ".nl", 0, true, readStub},
    {"mpl", ".mpl", 0, false, readMpl},
};

}  // namespace

std::span<const Language> languages() { return rows; }

}  // namespace tarq::command
