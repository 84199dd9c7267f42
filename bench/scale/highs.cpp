#include <Highs.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "assignment.h"
#include "programs.h"
#include "stages.h"

namespace scale {
namespace {

void check(HighsStatus status) {
    if (status != HighsStatus::kOk) throw std::runtime_error("a call of HiGHS failed");
}

/// What the component's engine tells HiGHS for its own defaults: presolve, then the dual simplex method, on one thread.
void setOptions(Highs& highs) {
    check(highs.setOptionValue("output_flag", false));
    check(highs.setOptionValue("threads", 1));
    check(highs.setOptionValue("presolve", "on"));
    check(highs.setOptionValue("solver", "simplex"));
    check(highs.setOptionValue("simplex_strategy", kSimplexStrategyDual));
}

std::string nameOf(std::size_t person, std::size_t task) {
    return std::string("does.").append(std::to_string(person + 1)).append(".").append(std::to_string(task + 1));
}

class RowByRow {
public:
    explicit RowByRow(std::size_t size) : size_(size) { setOptions(highs_); }

    void createColumns() {
        const std::vector<double> lower(size_, 0.0);
        const std::vector<double> upper(size_, kHighsInf);
        for (std::size_t person = 0; person < size_; ++person) {
            check(highs_.addVars(static_cast<HighsInt>(size_), lower.data(), upper.data()));
            for (std::size_t task = 0; task < size_; ++task) {
                check(highs_.passColName(columnOf(person, task), nameOf(person, task)));
            }
        }
    }
    void writeCostsAndBounds(const std::vector<double>& costs) {
        const std::vector<double> lower(size_, 0.0);
        const std::vector<double> upper(size_, 1.0);
        for (std::size_t person = 0; person < size_; ++person) {
            const HighsInt first = columnOf(person, 0);
            const HighsInt last = columnOf(person, size_ - 1);
            check(highs_.changeColsCost(first, last, &costs[person * size_]));
            check(highs_.changeColsBounds(first, last, lower.data(), upper.data()));
        }
    }
    void addRows() {
        for (std::size_t person = 0; person < size_; ++person) addRow("person.", person, columnOf(person, 0), 1);
        for (std::size_t task = 0; task < size_; ++task) addRow("task.", task, columnOf(0, task), columnOf(1, 0));
    }
    Highs& highs() { return highs_; }

private:
    [[nodiscard]] HighsInt columnOf(std::size_t person, std::size_t task) const {
        return static_cast<HighsInt>(person * size_ + task);
    }
    void addRow(const char* kind, std::size_t number, HighsInt first, HighsInt step) {
        std::vector<HighsInt> columns(size_);
        for (HighsInt& column : columns) column = first + step * static_cast<HighsInt>(&column - columns.data());
        const std::vector<double> ones(size_, 1.0);
        check(highs_.addRow(1.0, 1.0, static_cast<HighsInt>(size_), columns.data(), ones.data()));
        check(highs_.passRowName(highs_.getNumRow() - 1, kind + std::to_string(number + 1)));
    }

    const std::size_t size_;
    Highs highs_;
};

void setColumns(const std::vector<double>& costs, HighsLp& lp) {
    lp.num_col_ = static_cast<HighsInt>(costs.size());
    lp.col_cost_ = costs;
    lp.col_lower_.assign(costs.size(), 0.0);
    lp.col_upper_.assign(costs.size(), 1.0);
}

/// Column by column, as HiGHS solves it: each column is in the row of its person and in that of its task.
void setRows(std::size_t size, HighsLp& lp) {
    lp.num_row_ = static_cast<HighsInt>(2 * size);
    lp.row_lower_.assign(2 * size, 1.0);
    lp.row_upper_.assign(2 * size, 1.0);
    HighsSparseMatrix& matrix = lp.a_matrix_;
    matrix.format_ = MatrixFormat::kColwise;
    matrix.num_col_ = lp.num_col_;
    matrix.num_row_ = lp.num_row_;
    matrix.start_.resize(size * size + 1);
    matrix.index_.resize(2 * size * size);
    matrix.value_.assign(2 * size * size, 1.0);
    for (std::size_t column = 0; column < size * size; ++column) {
        matrix.start_[column + 1] = static_cast<HighsInt>(2 * column + 2);
        matrix.index_[2 * column] = static_cast<HighsInt>(column / size);
        matrix.index_[2 * column + 1] = static_cast<HighsInt>(size + column % size);
    }
}

void solveAndRead(Stages& stages, Highs& highs, const std::vector<double>& costs) {
    check(highs.run());
    stages.end(5);
    const std::vector<double> solution = highs.getSolution().col_value;
    stages.end(6);
    tellResult(costs, solution, highs.getRunTime(), highs.getObjectiveValue());
}

}  // namespace

void runHighsRowByRow(std::size_t size) {
    Stages stages;
    const std::vector<double> costs = drawCosts(size);
    stages.end(1);
    RowByRow model(size);
    model.createColumns();
    stages.end(2);
    model.writeCostsAndBounds(costs);
    stages.end(3);
    model.addRows();
    stages.end(4);
    solveAndRead(stages, model.highs(), costs);
}

void runHighsArrays(std::size_t size) {
    Stages stages;
    const std::vector<double> costs = drawCosts(size);
    stages.end(1);
    HighsLp lp;
    stages.end(2);
    setColumns(costs, lp);
    stages.end(3);
    setRows(size, lp);
    stages.end(4);
    Highs highs;
    setOptions(highs);
    check(highs.passModel(std::move(lp)));
    solveAndRead(stages, highs, costs);
}

}  // namespace scale
