// LinearProblem: what a stub holds. Columns and rows have the order of the stub.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace tarq::translator {

inline constexpr double infinity = std::numeric_limits<double>::infinity();

struct Bounds {
    double lower = -infinity;
    double upper = infinity;
};

struct Term {
    int column = 0;  ///< its position in the stub
    double coefficient = 0;
};

struct Objective {
    int number = 0;  ///< 1-based number of the row that GLPK made of it, 0 for a problem without objective
    bool maximized = false;
    double constant = 0;
    std::vector<Term> terms;  ///< by column
    std::string name;         ///< empty without names

    [[nodiscard]] bool exists() const { return number != 0; }
};

struct LinearProblem {
    std::vector<Bounds> columns;  ///< continuous ones, then binary, then integer ones
    int binaryCount = 0;
    int integerCount = 0;  ///< of the others that are whole numbers

    std::vector<Bounds> rows;
    std::vector<std::size_t> rowStarts{0};  ///< where each row's terms begin in `terms`, and the end of the last
    std::vector<Term> terms;                ///< row by row, within a row by column

    Objective objective;

    /// As AMPL spells them; both empty without names.
    std::vector<std::string> columnNames;
    std::vector<std::string> rowNames;

    /// The 1-based number that GLPK has for each.
    std::vector<int> columnNumbers;
    std::vector<int> rowNumbers;

    [[nodiscard]] bool hasNames() const { return !columnNames.empty(); }
};

/// Values for a problem, in its order.
struct Solution {
    std::string message;
    std::vector<double> columns;  ///< as many as columns, or none
    std::vector<double> duals;    ///< as many as rows, or none
};

}  // namespace tarq::translator
