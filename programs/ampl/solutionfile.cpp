#include "solutionfile.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/wholefile.h"

namespace tarq::translator {

namespace {

class SolutionReader {
public:
    SolutionReader(std::string_view text, std::size_t columnCount, std::size_t rowCount)
        : rest_(text), columnCount_(columnCount), rowCount_(rowCount) {}

    /// False when the text is damaged; `failure` tells more.
    bool read() {
        return readMessage() && readSizes() && readValues(sizes_[1], solution_.duals) &&
               readValues(sizes_[3], solution_.columns);
    }

    [[nodiscard]] Solution takeSolution() { return std::move(solution_); }
    [[nodiscard]] std::string failure() const { return fmt::format("line {}: {}", line_, failure_); }

private:
    std::optional<std::string_view> nextLine() {
        if (rest_.empty()) return std::nullopt;
        ++line_;
        const std::size_t end = std::min(rest_.find('\n'), rest_.size());
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        return line;
    }

    template <typename Number>
    bool nextNumber(Number& number) {
        const auto line = nextLine();
        if (!line) return fail("the file ends here, too early");
        const std::string_view text = line->substr(std::min(line->find_first_not_of(' '), line->size()));
        const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
        if (end.ec != std::errc() || end.ptr == text.data()) return fail("a number is expected here");
        return true;
    }

    bool fail(std::string_view words) {
        failure_ = words;
        return false;
    }

    /// The lines in front of the first empty one. Solvers without a message leave nothing in front of it.
    bool readMessage() {
        for (;;) {
            const auto line = nextLine();
            if (!line) return fail("no empty line ends the message");
            if (line->empty()) return true;
            if (!solution_.message.empty()) solution_.message += '\n';
            solution_.message += *line;
        }
    }

    /// The options of the stub's first line, which come back, and the sizes: rows, duals, columns, values.
    bool readSizes() {
        std::optional<std::string_view> line;
        do {
            line = nextLine();
        } while (line && line->empty());
        if (!line || *line != "Options") return fail("'Options' is expected here");
        std::size_t optionCount = 0;
        std::array<long, 9> options{};
        if (!nextNumber(optionCount)) return false;
        if (optionCount < 3 || optionCount > options.size()) return fail("3 to 9 options are expected");
        for (std::size_t option = 0; option < optionCount; ++option) {
            if (!nextNumber(options[option])) return false;
            // A 3 in the second place says that a tolerance follows the sizes, and counts for two options.
            if (option == 1 && options[1] == 3) optionCount = std::max<std::size_t>(optionCount, 5) - 2;
        }
        for (std::size_t& size : sizes_) {
            if (!nextNumber(size)) return false;
        }
        double tolerance = 0;
        if (options[1] == 3 && !nextNumber(tolerance)) return false;
        const bool fits = sizes_[0] == rowCount_ && sizes_[2] == columnCount_ &&
                          (sizes_[1] == 0 || sizes_[1] == rowCount_) && (sizes_[3] == 0 || sizes_[3] == columnCount_);
        return fits || fail("the sizes aren't those of the problem");
    }

    bool readValues(std::size_t count, std::vector<double>& values) {
        values.resize(count);
        for (double& value : values) {
            if (!nextNumber(value)) return false;
            if (!std::isfinite(value)) return fail("a finite number is expected here");
        }
        return true;
    }

    std::string_view rest_;
    std::size_t columnCount_;
    std::size_t rowCount_;
    int line_ = 0;
    std::array<std::size_t, 4> sizes_{};
    Solution solution_;
    std::string failure_;
};

}  // namespace

std::variant<Solution, std::string> readSolution(const std::string& fileName, std::size_t columnCount,
                                                 std::size_t rowCount) {
    // Opening a pipe would wait for someone to write into it.
    std::error_code missing;
    if (!std::filesystem::is_regular_file(fileName, missing)) return "no solution was written";
    const auto text = readWholeFile(fileName);
    if (!text) return "the solution can't be read";
    SolutionReader reader(*text, columnCount, rowCount);
    if (reader.read()) return reader.takeSolution();
    return "the solution is damaged, " + reader.failure();
}

}  // namespace tarq::translator
