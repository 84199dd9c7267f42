#include "assembledtext.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/outputfile.h"

namespace tarq::translator {

int AssembledText::add(const Statement& statement) {
    const int line = nextLine_;
    statements_.emplace_back(line, statement);
    nextLine_ += 1 + static_cast<int>(std::count(statement.text.begin(), statement.text.end(), '\n'));
    return line;
}

Place AssembledText::placeOf(int line) const {
    const auto beginsBehind = [](int wanted, const auto& entry) { return wanted < entry.first; };
    auto found =
        std::upper_bound(statements_.begin(), statements_.end(), std::clamp(line, 1, nextLine_ - 1), beginsBehind);
    --found;
    const auto& [start, statement] = *found;
    return {statement.file->name, statement.line + std::clamp(line, 1, nextLine_ - 1) - start};
}

void AssembledText::write() const {
    OutputFile file(path_);
    for (const auto& [line, statement] : statements_) {
        file.write(statement.text);
        file.write('\n');
    }
    file.write("end;\n");
    if (!file.isOpen() || !file.close()) throw Failure(fmt::format("{} can't be written", path_));
}

}  // namespace tarq::translator
