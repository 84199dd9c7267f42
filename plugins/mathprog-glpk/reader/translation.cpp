#include "translation.h"

#include <glpk.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "memory.h"
#include "tarq/mathprog.h"

namespace tarq::mathprog {
namespace {

/// GLPK's words on their way to standard output. They come letter by letter where a model prints, and go out line by
/// line, so that little is lost when the process ends at a bad place. What a model prints without end is cut off.
class Words {
public:
    void take(std::string_view text) {
        length_ = std::min(longestListing, length_ + text.size());
        if (length_ == longestListing) return;
        line_ += text;
        if (line_.size() >= longestLine || line_.find('\n', line_.size() - text.size()) != std::string::npos) flush();
    }
    void flush() {
        std::string_view rest = line_;
        while (!rest.empty()) {
            const ssize_t written = ::write(STDOUT_FILENO, rest.data(), rest.size());
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) break;
            rest.remove_prefix(static_cast<std::size_t>(written));
        }
        line_.clear();
    }

private:
    static constexpr std::size_t longestLine = 4096;
    static constexpr std::size_t longestListing = std::size_t{1} << 28U;

    std::string line_;
    std::size_t length_ = 0;
};

int takeWords(void* words, const char* text) {
    constexpr int doNotPrint = 1;
    static_cast<Words*>(words)->take(text);
    return doNotPrint;
}

/// GLPK has told what went wrong and would now abort.
void giveUp(void* words) {
    static_cast<Words*>(words)->flush();
    ::_exit(EXIT_FAILURE);
}

/// Leaves the rest of the machine some room: a translator without a limit would take all there is.
void limitMemory() {
    constexpr std::uint64_t megabyte = std::uint64_t{1} << 20U;
    const std::uint64_t limit = availableMemory() / 4 * 3 / megabyte;
    glp_mem_limit(static_cast<int>(std::clamp<std::uint64_t>(limit, 64, std::numeric_limits<int>::max())));
}

bool generate(glp_tran* workspace, const ModelFiles& files) {
    const int skipData = files.data != nullptr ? 1 : 0;
    return glp_mpl_read_model(workspace, files.model, skipData) == 0 &&
           (files.data == nullptr || glp_mpl_read_data(workspace, files.data) == 0) &&
           glp_mpl_generate(workspace, nullptr) == 0;
}

/// The numbers of bound types in the order of GLPK's.
std::int32_t boundType(int type) { return MP_TYPE_FREE + (type - GLP_FR); }
static_assert(GLP_LO - GLP_FR == MP_TYPE_LOWER - MP_TYPE_FREE && GLP_UP - GLP_FR == MP_TYPE_UPPER - MP_TYPE_FREE &&
              GLP_DB - GLP_FR == MP_TYPE_DOUBLE - MP_TYPE_FREE && GLP_FX - GLP_FR == MP_TYPE_FIXED - MP_TYPE_FREE);

void appendName(std::string& names, const char* name) {
    if (name != nullptr) names += name;
    names += '\0';
}

/// Takes rows out of GLPK, columns ascending.
class RowReader {
public:
    explicit RowReader(glp_prob* source)
        : source_(source), columns_(static_cast<std::size_t>(glp_get_num_cols(source)) + 1), values_(columns_.size()) {}

    /// Appends the nonzeros of a row; their number.
    std::int32_t append(int number, Problem& problem) {
        const int length = glp_get_mat_row(source_, number, columns_.data(), values_.data());
        // GLPK hands a row over with what was put in last at the front, from position 1 on.
        order_.clear();
        for (int k = length; k >= 1; --k) order_.emplace_back(columns_[static_cast<std::size_t>(k)], k);
        if (!std::ranges::is_sorted(order_)) std::ranges::sort(order_);
        for (const auto& [column, k] : order_) {
            problem.columnNumbers.push_back(column);
            problem.values.push_back(values_[static_cast<std::size_t>(k)]);
        }
        return length;
    }

private:
    glp_prob* source_;
    std::vector<int> columns_;
    std::vector<double> values_;
    std::vector<std::pair<int, int>> order_;  ///< column and position of each nonzero
};

void copyProblem(glp_prob* source, Problem& problem) {
    problem.isMaximized = glp_get_obj_dir(source) == GLP_MAX ? 1 : 0;
    problem.integerColumnCount = glp_get_num_int(source);
    const int columnCount = glp_get_num_cols(source);
    problem.columns.reserve(static_cast<std::size_t>(columnCount));
    for (int j = 1; j <= columnCount; ++j) {
        problem.columns.push_back({.lower = glp_get_col_lb(source, j),
                                   .upper = glp_get_col_ub(source, j),
                                   .cost = glp_get_obj_coef(source, j),
                                   .type = boundType(glp_get_col_type(source, j)),
                                   .isInteger = glp_get_col_kind(source, j) == GLP_CV ? 0 : 1});
        appendName(problem.names, glp_get_col_name(source, j));
    }
    const int rowCount = glp_get_num_rows(source);
    problem.rows.reserve(static_cast<std::size_t>(rowCount));
    problem.columnNumbers.reserve(static_cast<std::size_t>(glp_get_num_nz(source)));
    problem.values.reserve(problem.columnNumbers.capacity());
    RowReader reader(source);
    for (int i = 1; i <= rowCount; ++i) {
        problem.rows.push_back({.lower = glp_get_row_lb(source, i),
                                .upper = glp_get_row_ub(source, i),
                                .type = boundType(glp_get_row_type(source, i)),
                                .length = reader.append(i, problem)});
        appendName(problem.names, glp_get_row_name(source, i));
    }
}

}  // namespace

bool translate(const ModelFiles& files, Problem& problem) {
    Words words;
    glp_term_hook(&takeWords, &words);
    glp_error_hook(&giveUp, &words);
    limitMemory();
    // What GLPK has taken goes with the process.
    glp_tran* const workspace = glp_mpl_alloc_wksp();
    const bool generated = generate(workspace, files);
    if (generated) {
        glp_prob* const built = glp_create_prob();
        glp_mpl_build_prob(workspace, built);
        copyProblem(built, problem);
    }
    words.flush();
    return generated;
}

}  // namespace tarq::mathprog
