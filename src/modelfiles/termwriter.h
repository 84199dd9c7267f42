// TermWriter: the terms of a sum, "3 X + 2 Y - Z", in lines of at most about 80 characters.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/outputfile.h"

namespace tarq {

class TermWriter {
public:
    explicit TermWriter(OutputFile& file) : file_(file) {}

    /// Begins a sum behind what stands in its line already.
    void begin(std::size_t lineLength) {
        lineLength_ = lineLength;
        isFirst_ = true;
    }
    /// Begins the sum of the objective with its direction and, behind it, `mark`.
    void beginObjective(bool isMaximum, std::string_view mark = {}) {
        constexpr std::string_view maximum = "MAX   ";
        constexpr std::string_view minimum = "MIN   ";
        file_.write(isMaximum ? maximum : minimum);
        file_.write(mark);
        begin(maximum.size() + mark.size());
    }
    /// Writes a term of the name and, behind it, `tail`.
    void put(double coefficient, std::string_view name, std::string_view tail = {});

private:
    OutputFile& file_;
    std::size_t lineLength_ = 0;
    bool isFirst_ = true;
};

}  // namespace tarq
