#include <limits>
#include <vector>

#include "languages/stubprotocol.h"
#include "stub.h"

// Last, as its macros name nearly everything.
#include "amplsolver.h"

namespace tarq::stub {
namespace {

using Problem = ASL_fg;

/// Bounds that no part of the stub gave stay not-a-number, by which a stub that was cut off is known.
double* unsetBounds(Problem& problem, int count) {
    const std::size_t length = 2 * static_cast<std::size_t>(count);
    auto* const bounds = static_cast<double*>(M1alloc_ASL(&problem.i, length * sizeof(double)));
    for (std::size_t i = 0; i < length; ++i) bounds[i] = std::numeric_limits<double>::quiet_NaN();
    return bounds;
}

template <class Entry, class Visit>
void walk(const Entry* entry, Visit visit) {
    for (; entry != nullptr; entry = entry->next) visit(*entry);
}

/// Fewer coefficients than the header tells of: the stub was cut off.
bool isCutOff(const Problem& problem) {
    std::size_t count = 0;
    for (int i = 0; i < problem.i.n_obj_; ++i) walk(problem.i.Ograd_[i], [&](const ograd&) { ++count; });
    return problem.i.nzjac_ < problem.i.nZc_ || count < problem.i.nZo_;
}

bool isConstant(const cde& body, double& value) {
    value = 0.0;
    if (body.e == nullptr) return true;
    if (body.e->op != reinterpret_cast<efunc*>(&f_OPNUM_ASL)) return false;
    value = reinterpret_cast<const expr_n*>(body.e)->v;
    return true;
}

/// Whether what stands beside the linear parts is nothing but the objective's constant.
bool isLinear(const Problem& problem) {
    double constant = 0.0;
    for (int i = 0; i < problem.i.n_con_; ++i) {
        if (!isConstant(problem.I.con_de_[i], constant) || constant != 0.0) return false;
        if (problem.i.cvar_ != nullptr && problem.i.cvar_[i] != 0) return false;
    }
    return problem.i.n_obj_ == 0 || isConstant(problem.I.obj_de_[0], constant);
}

Sizes sizesOf(const Problem& problem) {
    const Edaginfo& info = problem.i;
    return {.columns = info.n_var_,
            .rows = info.n_con_,
            .objectives = info.n_obj_,
            .nonlinearObjectives = info.nlo_,
            .nonlinearRows = info.nlc_,
            .nonlinearNetworkRows = info.nlnc_,
            .columnsNonlinearInRows = info.nlvc_,
            .columnsNonlinearInObjectives = info.nlvo_,
            .binaryColumns = info.nbv_,
            .integerColumns = info.niv_,
            .longestRowName = info.maxrownamelen_,
            .longestColumnName = info.maxcolnamelen_};
}

std::vector<double> costsOf(const Problem& problem) {
    const int columns = problem.i.n_var_;
    std::vector<double> costs(static_cast<std::size_t>(columns));
    if (problem.i.n_obj_ == 0) return costs;
    walk(problem.i.Ograd_[0], [&](const ograd& entry) {
        if (entry.varno >= 0 && entry.varno < columns) costs[static_cast<std::size_t>(entry.varno)] = entry.coef;
    });
    return costs;
}

void tellColumns(Problem& problem, Answer& answer) {
    ASL* const asl = reinterpret_cast<ASL*>(&problem);
    const std::vector<double> costs = costsOf(problem);
    const double* bounds = problem.i.LUv_;
    for (int j = 0; j < problem.i.n_var_; ++j, bounds += 2) {
        answer.real(bounds[0]);
        answer.real(bounds[1]);
        answer.real(costs[static_cast<std::size_t>(j)]);
        if (problem.i.maxcolnamelen_ != 0) answer.text(var_name_ASL(asl, j));
    }
}

void tellRows(Problem& problem, Answer& answer) {
    ASL* const asl = reinterpret_cast<ASL*>(&problem);
    const double* bounds = problem.i.LUrhs_;
    for (int i = 0; i < problem.i.n_con_; ++i, bounds += 2) {
        answer.real(bounds[0]);
        answer.real(bounds[1]);
        if (problem.i.maxrownamelen_ != 0) answer.text(con_name_ASL(asl, i));
    }
}

void tellCoefficients(const Problem& problem, Answer& answer) {
    for (int i = 0; i < problem.i.n_con_; ++i) {
        const cgrad* const first = problem.i.Cgrad_[i];
        std::int32_t count = 0;
        walk(first, [&](const cgrad&) { ++count; });
        answer.integer(count);
        walk(first, [&](const cgrad& entry) {
            answer.integer(entry.varno);
            answer.real(entry.coef);
        });
    }
}

}  // namespace

bool readStub(const std::string& stub, Answer& answer) {
    ASL* const asl = ASL_alloc(ASL_read_fg);
    auto& problem = *reinterpret_cast<Problem*>(asl);
    asl->i.return_nofile_ = 1;
    asl->p.need_funcadd_ = 0;  // a stub must not make us load libraries of functions
    FILE* const file = jac0dim_ASL(asl, stub.c_str(), 0);
    if (file == nullptr) return false;
    answer.integer(hello);
    const Sizes sizes = sizesOf(problem);
    answer.bytes(&sizes, sizeof sizes);
    answer.flush();

    asl->i.LUv_ = unsetBounds(problem, sizes.columns);
    asl->i.LUrhs_ = unsetBounds(problem, sizes.rows);
    if (fg_read_ASL(asl, file, ASL_return_read_err) != 0 || isCutOff(problem)) return false;
    const bool linear = isLinear(problem);
    answer.integer(linear ? verdict::linear : verdict::nonlinear);
    answer.integer(sizes.objectives > 0 ? problem.i.objtype_[0] : 0);
    if (linear) {
        tellColumns(problem, answer);
        tellRows(problem, answer);
        tellCoefficients(problem, answer);
        answer.integer(farewell);
    }
    answer.flush();
    return linear;
}

}  // namespace tarq::stub
