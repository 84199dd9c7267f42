// The program's ends of the pipes to the component.
//
// A component that has gone ends the program at the next word, as nobody is left to work for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarq::stub {

/// Words to the component, sent in large pieces.
class Answer {
public:
    /// Takes standard output over: what the AMPL library prints from now on goes nowhere.
    Answer();

    void bytes(const void* start, std::size_t length);
    void integer(std::int32_t value) { bytes(&value, sizeof value); }
    void real(double value) { bytes(&value, sizeof value); }
    void text(std::string_view value);
    /// Sends what is waiting.
    void flush();

private:
    int descriptor_;
    std::vector<char> waiting_;
};

/// Words from the component on standard input. One that doesn't come ends the program.
[[nodiscard]] std::int32_t hearInteger();
[[nodiscard]] std::string hearText();
/// The number of values and the values.
[[nodiscard]] std::vector<double> hearReals();
[[nodiscard]] std::vector<int> hearIntegers();

}  // namespace tarq::stub
