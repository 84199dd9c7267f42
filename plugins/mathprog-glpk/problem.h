// Problem: a linear problem as MathProg's translator has generated it, and the form in which it goes through a pipe.
//
// Both ends come from one build and run on one machine, so records travel as they are in memory. The receiver takes
// nothing on trust: a program that has gone astray may send anything.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tarq::mathprog {

inline constexpr const char* readerName = "tarq-mathprog";

struct Column {
    double lower = 0.0;
    double upper = 0.0;
    double cost = 0.0;
    std::int32_t type = 0;  ///< which bounds there are, in the numbers of tarq/mathprog.h
    std::int32_t isInteger = 0;
};

struct Row {
    double lower = 0.0;
    double upper = 0.0;
    std::int32_t type = 0;
    std::int32_t length = 0;  ///< its nonzeros
};

struct Problem {
    std::int32_t isMaximized = 0;
    std::int32_t integerColumnCount = 0;
    std::vector<Column> columns;
    std::vector<Row> rows;
    std::vector<std::int32_t> columnNumbers;  ///< of the nonzeros, row by row, from 1
    std::vector<double> values;
    std::string names;  ///< of the columns and then of the rows, each with a zero byte behind it
};

/// Takes so many bytes; false when they can't be taken.
using Send = std::function<bool(const void* bytes, std::size_t length)>;
/// Fills so many bytes; false when there are no more, or on a failure.
using Receive = std::function<bool(void* bytes, std::size_t length)>;

[[nodiscard]] bool sendProblem(const Problem& problem, const Send& send);
/// Tells that there is no problem, as the translator has refused the model.
[[nodiscard]] bool sendRefusal(const Send& send);

enum class Received {
    Whole,
    Refusal,
    Broken,  ///< it ended too early, or is no problem
};

/// Unless the answer is Whole, `problem` is of no use. Memory is asked for as the bytes come, whatever counts are told.
[[nodiscard]] Received receiveProblem(Problem& problem, const Receive& receive);

}  // namespace tarq::mathprog
