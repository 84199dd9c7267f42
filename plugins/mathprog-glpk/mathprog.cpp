// libmathprog.so: the operations of tarq/mathprog.h on the problem that was read last.
#include "tarq/mathprog.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/childprocess.h"
#include "platform/programsearch.h"
#include "problem.h"

namespace tarq::mathprog {
namespace {

/// The problem read last, with what makes its parts quick to find.
struct CurrentProblem {
    Problem problem;
    std::vector<std::size_t> nameStarts;  ///< of the columns and then of the rows
    std::vector<std::size_t> rowStarts;   ///< positions of the rows' first nonzeros

    [[nodiscard]] const Column* column(std::int32_t number) const { return at(problem.columns, number); }
    [[nodiscard]] const Row* row(std::int32_t number) const { return at(problem.rows, number); }
    [[nodiscard]] const char* name(std::size_t position) const { return problem.names.data() + nameStarts[position]; }

private:
    template <class Record>
    static const Record* at(const std::vector<Record>& records, std::int32_t number) {
        const auto position = static_cast<std::size_t>(number) - 1;
        return position < records.size() ? &records[position] : nullptr;
    }
};

/// The interface has no handles, so there is one problem for the whole process.
CurrentProblem& current() {
    static CurrentProblem problem;
    return problem;
}

/// Fills a buffer from the program's output; false when that ends before.
bool receiveFrom(ChildProcess& program, void* bytes, std::size_t length) {
    auto* at = static_cast<char*>(bytes);
    while (length > 0) {
        std::size_t count = 0;
        if (program.read(at, length, count) != ChildProcess::Read::Bytes) return false;
        at += count;
        length -= count;
    }
    return true;
}

/// Has the reading program read a model. True when there is a problem then; `reason` tells why there is none where the
/// translator hasn't.
bool readProblem(const std::vector<std::string>& arguments, Problem& problem, std::string& reason) {
    ChildProcess program(findOwnProgram(readerName), arguments, ChildProcess::Input::None,
                         ChildProcess::Errors::Dropped);
    if (program.start() != ChildProcess::Start::Done) {
        reason = std::string("The program ") + readerName + " can't be started.\n";
        return false;
    }
    const Received received =
        receiveProblem(problem, [&](void* bytes, std::size_t length) { return receiveFrom(program, bytes, length); });
    program.wait();
    if (received == Received::Broken) reason = std::string(readerName) + " ended before it was done with the model.\n";
    return received == Received::Whole;
}

CurrentProblem withStarts(Problem problem) {
    CurrentProblem made{.problem = std::move(problem), .nameStarts = {}, .rowStarts = {}};
    made.nameStarts.reserve(made.problem.columns.size() + made.problem.rows.size());
    for (std::size_t start = 0; start < made.problem.names.size(); start = made.problem.names.find('\0', start) + 1) {
        made.nameStarts.push_back(start);
    }
    std::size_t start = 0;
    made.rowStarts.reserve(made.problem.rows.size());
    for (const Row& row : made.problem.rows) {
        made.rowStarts.push_back(start);
        start += static_cast<std::size_t>(row.length);
    }
    return made;
}

std::int32_t countOf(std::size_t size) { return static_cast<std::int32_t>(size); }

}  // namespace
}  // namespace tarq::mathprog

using namespace tarq::mathprog;

int32_t mp_create_prob(void) {
    current() = {};
    return 0;
}

int32_t mp_print_prob(void) { return 0; }

int32_t mp_read_model2(const char* modelFile, const char* dataFile, const char* outputFile) {
    constexpr std::int32_t failure = 1;
    if (modelFile == nullptr) return failure;
    try {
        current() = {};
        std::vector<std::string> arguments{outputFile != nullptr ? outputFile : "/dev/null", modelFile};
        if (dataFile != nullptr) arguments.emplace_back(dataFile);
        Problem problem;
        std::string reason;
        if (!readProblem(arguments, problem, reason)) {
            std::ofstream(arguments.front(), std::ios::app) << reason;
            return failure;
        }
        current() = withStarts(std::move(problem));
        return 0;
    } catch (const std::exception&) {
        return failure;
    }
}

int32_t mp_get_class(void) { return current().problem.integerColumnCount == 0 ? MP_CLASS_LP : MP_CLASS_LP + 1; }

int32_t mp_get_obj_dir(void) { return current().problem.isMaximized == 0 ? MP_DIR_MIN : MP_DIR_MIN + 1; }

int32_t mp_get_num_cols(void) { return countOf(current().problem.columns.size()); }

int32_t mp_get_num_rows(void) { return countOf(current().problem.rows.size()); }

const char* mp_get_col_name(int32_t j) {
    return current().column(j) != nullptr ? current().name(static_cast<std::size_t>(j) - 1) : nullptr;
}

int32_t mp_get_col_kind(int32_t j) {
    const Column* const column = current().column(j);
    return column == nullptr || column->isInteger == 0 ? MP_KIND_CONTINUOUS : MP_KIND_CONTINUOUS + 1;
}

int32_t mp_get_col_type(int32_t j) {
    const Column* const column = current().column(j);
    return column != nullptr ? column->type : static_cast<std::int32_t>(MP_TYPE_FREE);
}

double mp_get_col_lb(int32_t j) {
    const Column* const column = current().column(j);
    return column != nullptr ? column->lower : 0.0;
}

double mp_get_col_ub(int32_t j) {
    const Column* const column = current().column(j);
    return column != nullptr ? column->upper : 0.0;
}

double mp_get_obj_coef(int32_t j) {
    const Column* const column = current().column(j);
    return column != nullptr ? column->cost : 0.0;
}

const char* mp_get_row_name(int32_t i) {
    if (current().row(i) == nullptr) return nullptr;
    return current().name(current().problem.columns.size() + static_cast<std::size_t>(i) - 1);
}

int32_t mp_get_row_type(int32_t i) {
    const Row* const row = current().row(i);
    return row != nullptr ? row->type : static_cast<std::int32_t>(MP_TYPE_FREE);
}

double mp_get_row_lb(int32_t i) {
    const Row* const row = current().row(i);
    return row != nullptr ? row->lower : 0.0;
}

double mp_get_row_ub(int32_t i) {
    const Row* const row = current().row(i);
    return row != nullptr ? row->upper : 0.0;
}

int32_t mp_get_mat_row(int32_t i, int32_t* indices, double* values) {
    const Row* const row = current().row(i);
    if (row == nullptr || indices == nullptr || values == nullptr) return 0;
    const std::size_t start = current().rowStarts[static_cast<std::size_t>(i) - 1];
    std::copy_n(current().problem.columnNumbers.begin() + static_cast<std::ptrdiff_t>(start), row->length, indices + 1);
    std::copy_n(current().problem.values.begin() + static_cast<std::ptrdiff_t>(start), row->length, values + 1);
    return row->length;
}
