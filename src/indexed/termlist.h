// Term lists: a weighted sum of columns, written as one list of coefficients and columns.
#pragma once

#include <string>
#include <vector>

#include "frame/status.h"
#include "frame/valuelist.h"

namespace tarq {

/// Coefficients of a term: one for all its columns, or one each.
using CoefficientGroup = std::vector<double>;
/// Names of the columns of a term.
using ColumnGroup = std::vector<std::string>;

/// A term list as it was read. A list that ends with coefficients has one group of columns less than of coefficients.
struct TermList {
    std::vector<CoefficientGroup> coefficients;
    std::vector<ColumnGroup> columns;
};

/// Reads coefficients and columns in turn: an optional coefficient, a number or several, then columns: a name, several,
/// or an object that has columns or values. A coefficient that isn't there is 1. Failures have the status
/// invalidArgument.
Outcome parseCoeffsAndCols(const ValueList& list, TermList& terms);

}  // namespace tarq
