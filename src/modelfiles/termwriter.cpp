#include "modelfiles/termwriter.h"

#include <array>
#include <cmath>
#include <utility>

#include "modelfiles/numberforms.h"

namespace tarq {
namespace {

constexpr std::size_t longestLine = 80;
constexpr std::string_view newLine = "\n      ";

/// "3 ", "- ", " + 2 ", " - ": what stands before the name.
char* writeLead(char* to, double coefficient, bool isFirst) {
    if (isFirst) {
        if (coefficient == 1.0) return to;
        if (coefficient == -1.0) {
            *to++ = '-';
        } else {
            to = writePlainDecimal(to, coefficient);
        }
    } else {
        *to++ = ' ';
        *to++ = coefficient < 0.0 ? '-' : '+';
        if (std::abs(coefficient) != 1.0) {
            *to++ = ' ';
            to = writePlainDecimal(to, std::abs(coefficient));
        }
    }
    *to++ = ' ';
    return to;
}

}  // namespace

void TermWriter::put(double coefficient, std::string_view name, std::string_view tail) {
    std::array<char, longestNumberForm + 8> lead;
    char* const end = writeLead(lead.data(), coefficient, std::exchange(isFirst_, false));
    const std::string_view leading(lead.data(), static_cast<std::size_t>(end - lead.data()));
    const std::size_t length = leading.size() + name.size() + tail.size();
    if (lineLength_ + length > longestLine) {
        file_.write(newLine);
        lineLength_ = newLine.size() - 1;
    }
    lineLength_ += length;
    file_.write(leading);
    file_.write(name);
    file_.write(tail);
}

}  // namespace tarq
