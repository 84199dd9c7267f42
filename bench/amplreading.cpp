#include "amplreading.h"

// Last, as its macros name nearly everything.
#include <ampl-netlib-solvers/nlp.h>

namespace filebench {

std::int64_t readAmplStub(const std::string& stub) {
    ASL* problem = ASL_alloc(ASL_read_fg);
    problem->i.return_nofile_ = 1;
    FILE* const file = jac0dim_ASL(problem, stub.c_str(), 0);
    if (file == nullptr || fg_read_ASL(problem, file, ASL_return_read_err) != 0) return -1;
    for (int j = 0; problem->i.maxcolnamelen_ != 0 && j < problem->i.n_var_; ++j) (void)var_name_ASL(problem, j);
    for (int i = 0; problem->i.maxrownamelen_ != 0 && i < problem->i.n_con_; ++i) (void)con_name_ASL(problem, i);
    const auto count = static_cast<std::int64_t>(problem->i.nzjac_);
    ASL_free(&problem);
    return count;
}

}  // namespace filebench
