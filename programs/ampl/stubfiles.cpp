#include "stubfiles.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iterator>

#include "failure.h"
#include "platform/outputfile.h"

namespace tarq::translator {

namespace {

constexpr std::size_t longestNumber = 32;

/// The file with STUB.nl, one method for each kind of segment.
class StubWriter {
public:
    StubWriter(const LinearProblem& problem, OutputFile& file) : problem_(problem), file_(file) {}

    void write(std::string_view stubName, NameFiles names) {
        writeHeader(stubName, names);
        for (std::size_t row = 0; row < problem_.rows.size(); ++row) print("C{}\nn0\n", row);
        if (problem_.objective.exists()) {
            print("O0 {}\nn", problem_.objective.maximized ? 1 : 0);
            writeNumber(problem_.objective.constant);
            file_.write('\n');
        }
        writeBounds('r', problem_.rows);
        writeBounds('b', problem_.columns);
        writeColumnCounts();
        for (std::size_t row = 0; row < problem_.rows.size(); ++row) {
            const std::size_t start = problem_.rowStarts[row];
            writeTerms('J', row, problem_.terms.data() + start, problem_.rowStarts[row + 1] - start);
        }
        writeTerms('G', 0, problem_.objective.terms.data(), problem_.objective.terms.size());
    }

private:
    template <typename... Arguments>
    void print(fmt::format_string<Arguments...> format, Arguments&&... arguments) {
        line_.clear();
        fmt::format_to(std::back_inserter(line_), format, std::forward<Arguments>(arguments)...);
        file_.write(std::string_view(line_.data(), line_.size()));
    }

    /// In the fewest digits that read back as the same number.
    void writeNumber(double value) {
        char* start = file_.room(longestNumber);
        file_.wroteTo(std::to_chars(start, start + longestNumber, value + 0.0).ptr);  // -0 becomes 0
    }

    void writeHeader(std::string_view stubName, NameFiles names);
    void writeBounds(char segment, const std::vector<Bounds>& bounds);
    void writeColumnCounts();
    void writeTerms(char segment, std::size_t number, const Term* terms, std::size_t count);

    const LinearProblem& problem_;
    OutputFile& file_;
    fmt::memory_buffer line_;
};

std::size_t longest(const std::vector<std::string>& names) {
    std::size_t length = 0;
    for (const std::string& name : names) length = std::max(length, name.size());
    return length;
}

void StubWriter::writeHeader(std::string_view stubName, NameFiles names) {
    const auto isRange = [](const Bounds& row) {
        return row.lower != -infinity && row.upper != infinity && row.lower != row.upper;
    };
    const auto isEquation = [](const Bounds& row) { return row.lower == row.upper; };
    const auto ranges = std::count_if(problem_.rows.begin(), problem_.rows.end(), isRange);
    const auto equations = std::count_if(problem_.rows.begin(), problem_.rows.end(), isEquation);
    const std::size_t rowName = names.rows ? std::max(longest(problem_.rowNames), problem_.objective.name.size()) : 0;
    const std::size_t columnName = names.columns ? longest(problem_.columnNames) : 0;

    print("g3 1 1 0\t# problem {}\n", stubName);
    print(" {} {} {} {} {}\t# vars, constraints, objectives, ranges, eqns\n", problem_.columns.size(),
          problem_.rows.size(), problem_.objective.exists() ? 1 : 0, ranges, equations);
    print(" 0 0\t# nonlinear constraints, objectives\n");
    print(" 0 0\t# network constraints: nonlinear, linear\n");
    print(" 0 0 0\t# nonlinear vars in constraints, objectives, both\n");
    print(" 0 0 0 1\t# linear network variables; functions; arith, flags\n");
    print(" {} {} 0 0 0\t# discrete variables: binary, integer, nonlinear (b,c,o)\n", problem_.binaryCount,
          problem_.integerCount);
    print(" {} {}\t# nonzeros in Jacobian, gradients\n", problem_.terms.size(), problem_.objective.terms.size());
    print(" {} {}\t# max name lengths: constraints, variables\n", rowName, columnName);
    print(" 0 0 0 0 0\t# common exprs: b,c,o,c1,o1\n");
}

void StubWriter::writeBounds(char segment, const std::vector<Bounds>& bounds) {
    if (bounds.empty()) return;
    print("{}\n", segment);
    for (const Bounds& one : bounds) {
        const bool hasLower = one.lower != -infinity;
        const bool hasUpper = one.upper != infinity;
        if (!hasLower && !hasUpper) {
            file_.write("3\n");
            continue;
        }
        const bool isFixed = one.lower == one.upper;
        file_.write(isFixed ? "4 " : !hasLower ? "1 " : !hasUpper ? "2 " : "0 ");
        if (hasLower) writeNumber(one.lower);
        if (hasLower && hasUpper && !isFixed) file_.write(' ');
        if (hasUpper && !isFixed) writeNumber(one.upper);
        file_.write('\n');
    }
}

void StubWriter::writeColumnCounts() {
    std::vector<std::size_t> counts(problem_.columns.size());
    for (const Term& term : problem_.terms) ++counts[static_cast<std::size_t>(term.column)];
    print("k{}\n", counts.size() - 1);
    std::size_t sum = 0;
    for (std::size_t column = 0; column + 1 < counts.size(); ++column) print("{}\n", sum += counts[column]);
}

void StubWriter::writeTerms(char segment, std::size_t number, const Term* terms, std::size_t count) {
    if (count == 0) return;
    print("{}{} {}\n", segment, number, count);
    for (const Term* term = terms; term != terms + count; ++term) {
        char* start = file_.room(longestNumber);
        file_.wroteTo(std::to_chars(start, start + longestNumber, term->column).ptr);
        file_.write(' ');
        writeNumber(term->coefficient);
        file_.write('\n');
    }
}

void closeOrThrow(OutputFile& file, const std::string& name) {
    if (!file.isOpen() || !file.close()) throw Failure(fmt::format("{} can't be written", name));
}

void writeNames(const std::string& fileName, const std::vector<std::string>& names, const std::string& last) {
    OutputFile file(fileName);
    for (const std::string& name : names) {
        file.write(name);
        file.write('\n');
    }
    if (!last.empty()) {
        file.write(last);
        file.write('\n');
    }
    closeOrThrow(file, fileName);
}

}  // namespace

void writeStub(const LinearProblem& problem, const std::string& stub, NameFiles names) {
    try {
        if (names.rows) writeNames(stub + ".row", problem.rowNames, problem.objective.name);
        if (names.columns) writeNames(stub + ".col", problem.columnNames, "");
        OutputFile file(stub + ".nl");
        StubWriter(problem, file).write(std::filesystem::path(stub).filename().string(), names);
        closeOrThrow(file, stub + ".nl");
    } catch (const Failure&) {
        removeStub(stub);
        throw;
    }
}

void removeStub(const std::string& stub) {
    for (const char* extension : {".nl", ".row", ".col"}) unlink((stub + extension).c_str());
}

}  // namespace tarq::translator
