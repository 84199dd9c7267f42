#include "glpkproblem.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "amplname.h"
#include "failure.h"
#include "platform/outputfile.h"

namespace tarq::translator {

namespace {

std::size_t positionOf(int number) { return static_cast<std::size_t>(number) - 1; }

Bounds boundsOf(int type, double lower, double upper) {
    Bounds bounds;
    if (type != GLP_FR && type != GLP_UP) bounds.lower = lower;
    if (type == GLP_UP || type == GLP_DB) bounds.upper = upper;
    if (type == GLP_FX) bounds.upper = lower;
    return bounds;
}

/// Copies a problem of GLPK's into the order of a stub.
class ProblemCopy {
public:
    ProblemCopy(glp_prob* source, const FamilyNames& objectives, bool withNames)
        : source_(source), objectives_(objectives), withNames_(withNames) {}

    LinearProblem make() {
        addColumns();
        addRows();
        if (copy_.objective.exists()) addObjective();
        return std::move(copy_);
    }

private:
    [[nodiscard]] bool isObjective(int row) const {
        if (glp_get_row_type(source_, row) != GLP_FR) return false;
        return objectives_.find(familyName(glp_get_row_name(source_, row))) != objectives_.end();
    }

    void addColumns() {
        const int count = glp_get_num_cols(source_);
        positions_.resize(static_cast<std::size_t>(count));
        for (const int kind : {GLP_CV, GLP_BV, GLP_IV}) {
            for (int column = 1; column <= count; ++column) {
                if (glp_get_col_kind(source_, column) == kind) addColumn(column, kind);
            }
        }
    }

    void addColumn(int column, int kind) {
        positions_[positionOf(column)] = static_cast<int>(copy_.columns.size());
        copy_.columnNumbers.push_back(column);
        copy_.columns.push_back(boundsOf(glp_get_col_type(source_, column), glp_get_col_lb(source_, column),
                                         glp_get_col_ub(source_, column)));
        if (kind == GLP_BV) ++copy_.binaryCount;
        if (kind == GLP_IV) ++copy_.integerCount;
        if (withNames_) copy_.columnNames.push_back(amplName(glp_get_col_name(source_, column)));
    }

    void addRows() {
        const std::size_t longestRow = positions_.size() + 1;
        std::vector<int> columns(longestRow);
        std::vector<double> coefficients(longestRow);
        copy_.terms.reserve(static_cast<std::size_t>(glp_get_num_nz(source_)));
        for (int row = 1; row <= glp_get_num_rows(source_); ++row) {
            if (isObjective(row)) {
                if (copy_.objective.number == 0) copy_.objective.number = row;
                continue;
            }
            copy_.rowNumbers.push_back(row);
            copy_.rows.push_back(
                boundsOf(glp_get_row_type(source_, row), glp_get_row_lb(source_, row), glp_get_row_ub(source_, row)));
            if (withNames_) copy_.rowNames.push_back(amplName(glp_get_row_name(source_, row)));
            const int count = glp_get_mat_row(source_, row, columns.data(), coefficients.data());
            for (std::size_t term = 1; term <= static_cast<std::size_t>(count); ++term) {
                copy_.terms.push_back({positions_[positionOf(columns[term])], coefficients[term]});
            }
            std::sort(copy_.terms.end() - count, copy_.terms.end(),
                      [](const Term& left, const Term& right) { return left.column < right.column; });
            copy_.rowStarts.push_back(copy_.terms.size());
        }
    }

    void addObjective() {
        copy_.objective.maximized = glp_get_obj_dir(source_) == GLP_MAX;
        copy_.objective.constant = glp_get_obj_coef(source_, 0);
        if (withNames_) copy_.objective.name = amplName(glp_get_obj_name(source_));
        for (std::size_t position = 0; position < copy_.columnNumbers.size(); ++position) {
            const double cost = glp_get_obj_coef(source_, copy_.columnNumbers[position]);
            if (cost != 0) copy_.objective.terms.push_back({static_cast<int>(position), cost});
        }
    }

    glp_prob* source_;
    const FamilyNames& objectives_;
    bool withNames_;
    std::vector<int> positions_;  ///< of each of GLPK's columns in the stub
    LinearProblem copy_;
};

/// What a solution says about each of GLPK's rows and columns, by number.
class SolutionValues {
public:
    SolutionValues(glp_prob* source, const LinearProblem& problem, const Solution& solution)
        : source_(source),
          values_(static_cast<std::size_t>(glp_get_num_cols(source)) + 1),
          reducedCosts_(values_.size()),
          activities_(static_cast<std::size_t>(glp_get_num_rows(source)) + 1),
          duals_(activities_.size()) {
        for (std::size_t position = 0; position < solution.columns.size(); ++position) {
            values_[static_cast<std::size_t>(problem.columnNumbers[position])] = solution.columns[position];
        }
        for (std::size_t position = 0; position < solution.duals.size(); ++position) {
            duals_[static_cast<std::size_t>(problem.rowNumbers[position])] = solution.duals[position];
        }
        if (!solution.duals.empty()) {
            for (int column = 1; column < std::ssize(values_); ++column) {
                reducedCosts_[static_cast<std::size_t>(column)] = glp_get_obj_coef(source, column);
            }
        }
        if (problem.objective.exists()) {
            activities_[static_cast<std::size_t>(problem.objective.number)] = problem.objective.constant;
        }
        addTerms();
    }

    /// In the form that GLPK reads.
    void write(OutputFile& file) const {
        file.write(fmt::format("s ipt {} {} o 0\n", activities_.size() - 1, values_.size() - 1));
        write(file, 'i', activities_, duals_);
        write(file, 'j', values_, reducedCosts_);
        file.write("e o f\n");
    }

private:
    void addTerms() {
        std::vector<int> columns(values_.size());
        std::vector<double> coefficients(values_.size());
        for (std::size_t row = 1; row < activities_.size(); ++row) {
            const int count = glp_get_mat_row(source_, static_cast<int>(row), columns.data(), coefficients.data());
            for (std::size_t term = 1; term <= static_cast<std::size_t>(count); ++term) {
                const auto column = static_cast<std::size_t>(columns[term]);
                activities_[row] += coefficients[term] * values_[column];
                reducedCosts_[column] -= coefficients[term] * duals_[row];
            }
        }
    }

    static void write(OutputFile& file, char kind, const std::vector<double>& values,
                      const std::vector<double>& duals) {
        for (std::size_t number = 1; number < values.size(); ++number) {
            file.write(fmt::format("{} {} {:.17g} {:.17g}\n", kind, number, values[number], duals[number]));
        }
    }

    glp_prob* source_;
    std::vector<double> values_;
    std::vector<double> reducedCosts_;
    std::vector<double> activities_;
    std::vector<double> duals_;
};

}  // namespace

LinearProblem copyOf(glp_prob* source, const FamilyNames& objectives, bool withNames) {
    return ProblemCopy(source, objectives, withNames).make();
}

// GLPK takes a solution that isn't its own from a file only. Its form for interior points has values and duals for
// linear and integer problems alike.
int putSolution(glp_prob* target, const LinearProblem& problem, const Solution& solution, const std::string& folder) {
    const std::string fileName = folder + "/values";
    OutputFile file(fileName);
    SolutionValues(target, problem, solution).write(file);
    if (!file.isOpen() || !file.close()) throw Failure(fmt::format("{} can't be written", fileName));
    return glp_read_ipt(target, fileName.c_str());
}

}  // namespace tarq::translator
