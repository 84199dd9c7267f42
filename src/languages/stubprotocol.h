// What the component and its stub program say to each other through pipes.
//
// The program reads and writes AMPL's stub files, as it may crash on what they hold. Both ends come from one build and
// run on one machine, so numbers travel as they are in memory: integers of 32 bits and reals of 64, without padding. A
// text is its length as an integer and its bytes.
//
// `tarq-stub read STUB` answers on its standard output:
//   hello, the sizes;                                once the header is read
//   the verdict, the direction (0 is minimization);  once the body is read; nothing more unless it is `linear`
//   for each column: lower bound, upper bound, cost, name;
//   for each row: lower bound, upper bound, name;
//   for each row: the number of its coefficients, and for each the column's 0-based position and the value;
//   farewell.
// Names are there only where the header gives a longest length for them. A program that ends before the farewell has
// met a stub that it can't read.
//
// `tarq-stub write STUB` hears on its standard input the code, the number of columns and of rows, the message, for the
// columns and then for the rows the number of values (all or 0) and the values, and for both the number of basis states
// (all or 0) and the states; it answers with farewell once the file is written.
#pragma once

#include <array>
#include <cstdint>

namespace tarq::stub {

inline constexpr const char* programName = "tarq-stub";

inline constexpr std::int32_t hello = 0x54515231;
inline constexpr std::int32_t farewell = 0x31525154;

/// The sizes in the order in which they are sent.
struct Sizes {
    std::int32_t columns = 0;
    std::int32_t rows = 0;
    std::int32_t objectives = 0;
    std::int32_t nonlinearObjectives = 0;
    std::int32_t nonlinearRows = 0;
    std::int32_t nonlinearNetworkRows = 0;
    std::int32_t columnsNonlinearInRows = 0;
    std::int32_t columnsNonlinearInObjectives = 0;
    std::int32_t binaryColumns = 0;
    std::int32_t integerColumns = 0;
    std::int32_t longestRowName = 0;
    std::int32_t longestColumnName = 0;
};

inline constexpr std::array sizeFields{&Sizes::columns,
                                       &Sizes::rows,
                                       &Sizes::objectives,
                                       &Sizes::nonlinearObjectives,
                                       &Sizes::nonlinearRows,
                                       &Sizes::nonlinearNetworkRows,
                                       &Sizes::columnsNonlinearInRows,
                                       &Sizes::columnsNonlinearInObjectives,
                                       &Sizes::binaryColumns,
                                       &Sizes::integerColumns,
                                       &Sizes::longestRowName,
                                       &Sizes::longestColumnName};
static_assert(sizeof(Sizes) == sizeFields.size() * sizeof(std::int32_t));

/// What the body of a stub turned out to be.
namespace verdict {
inline constexpr std::int32_t linear = 1;
inline constexpr std::int32_t nonlinear = 2;  ///< though the header tells of nothing nonlinear
}  // namespace verdict

}  // namespace tarq::stub
