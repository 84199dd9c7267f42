// Term lists: a weighted sum of columns, written as one list of coefficients and columns.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "frame/result.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"

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
/// invalidArgument, or are those of a spreadsheet's own calls.
Outcome parseCoeffsAndCols(const ValueList& list, TermList& terms);

/// Hands each column of the list with its coefficient to `take(name, coefficient)`, which returns an Outcome, until
/// that fails. Its own failures have the status invalidArgument: a list that ends with coefficients, found before
/// anything is handed out, and a term with another number of coefficients than columns, found when its turn comes.
template <class Take>
Outcome walkTerms(const TermList& terms, const Take& take);

/// The tests of walkTerms, of the list and of a term.
Outcome checkTermCount(const TermList& terms);
Outcome checkTerm(const CoefficientGroup& coefficients, const ColumnGroup& columns);

template <class Take>
Outcome walkTerms(const TermList& terms, const Take& take) {
    TARQ_TRY(checkTermCount(terms));
    for (std::size_t term = 0; term < terms.columns.size(); ++term) {
        const CoefficientGroup& coefficients = terms.coefficients[term];
        const ColumnGroup& columns = terms.columns[term];
        TARQ_TRY(checkTerm(coefficients, columns));
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const double coefficient = coefficients[coefficients.size() == 1 ? 0 : i];
            TARQ_TRY(take(columns[i], coefficient));
        }
    }
    return {};
}

}  // namespace tarq
