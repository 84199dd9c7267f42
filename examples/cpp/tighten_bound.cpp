// Reads a model file, solves it, tightens an upper bound, solves it again, and tells what the bound costs.
//
// usage: tighten_bound FILE COLUMN BOUND, such as tighten_bound refinery_blend.mps SELLP 10
#include <cstdio>
#include <cstdlib>
#include <string>

#include "check.h"

using namespace tarq;

namespace {

double solve(ITARQModel& model) {
    check(model.Optimize());
    const auto status =
        valueOf<TARQSolutionStatusTyp>([&](TARQSolutionStatusTyp* value) { return model.get_SolutionStatus(value); });
    if (status == TARQSolutionStatusTyp::IPOptimalSolution) {
        return valueOf<double>([&](double* value) { return model.get_IPObjFunctValue(value); });
    }
    if (status != TARQSolutionStatusTyp::LPOptimalSolution) throw std::runtime_error("no optimum");
    return valueOf<double>([&](double* value) { return model.get_LPObjFunctValue(value); });
}

void compare(const std::string& file, const Variant& column, double bound) {
    const Ref<ITARQModel> model = newModel();
    check(model->ReadModel(file, TARQFileFormatType::MPS));
    const auto name = valueOf<std::string>([&](std::string* value) { return model->get_ModelName(value); });
    const auto oldBound = valueOf<double>([&](double* value) { return model->get_ColUB(column, value); });
    const double before = solve(*model);
    std::printf("%s: %.6f with %s up to %g\n", name.c_str(), before, column.text().c_str(), oldBound);
    check(model->put_ColUB(column, bound));
    const double after = solve(*model);
    std::printf("%s: %.6f with %s up to %g, a difference of %.6f\n", name.c_str(), after, column.text().c_str(), bound,
                after - before);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s FILE COLUMN BOUND\n", argv[0]);
        return 1;
    }
    return exitCode([&] { compare(argv[1], Variant(argv[2]), std::atof(argv[3])); });
}
