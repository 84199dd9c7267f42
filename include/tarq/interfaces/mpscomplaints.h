// What the reader of MPS files finds wrong, for those who explain it further.
#pragma once

#include <string_view>

namespace tarq::mpscomplaint {

inline constexpr std::string_view nameExpected = "NAME indicator expected.";
inline constexpr std::string_view rowsExpected = "ROWS indicator expected.";
inline constexpr std::string_view columnsExpected = "COLUMNS indicator expected.";
inline constexpr std::string_view unexpectedEnd = "Unexpected end of file.";

inline constexpr std::string_view badRowType = "Bad row type in ROW section.";
inline constexpr std::string_view badBoundType = "Bad type in BOUNDS section.";

inline constexpr std::string_view unknownRow = "Row name does not exist.";
inline constexpr std::string_view unknownColumn = "Col name does not exist.";

inline constexpr std::string_view emptyNewRowName = "Empty row name in ROW section.";
inline constexpr std::string_view emptyRowName = "Empty row name encountered.";
inline constexpr std::string_view emptyColumnName = "Empty col name encountered.";
inline constexpr std::string_view emptyBoundColumnName = "Empty col name in BOUNDS section.";

inline constexpr std::string_view emptyCoefficient = "Empty cost or nonzero value encountered.";
inline constexpr std::string_view emptyRightHandSide = "Empty RHS value encountered.";
inline constexpr std::string_view emptyRange = "Empty RANGE value encountered.";

inline constexpr std::string_view coefficientNotNumeric = "Cost or nonzero value is not numeric.";
inline constexpr std::string_view rightHandSideNotNumeric = "RHS value is not numeric.";
inline constexpr std::string_view rangeNotNumeric = "RANGE value is not numeric.";
inline constexpr std::string_view boundNotNumeric = "BOUND value is not numeric.";

}  // namespace tarq::mpscomplaint
