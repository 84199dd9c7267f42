// Reads a model file, solves it, tightens an upper bound, solves it again, and tells what the bound costs.
//
// usage: tighten_bound FILE COLUMN BOUND, such as tighten_bound refinery_blend.mps SELLP 10
#include <cstdio>
#include <cstdlib>
#include <string>

#include "program.h"

using namespace tarq::client;
using tarq::ITARQModel;
using tarq::TARQFileFormatType;

namespace {

void compare(const std::string& file, const std::string& column, double bound) {
    const Model model;
    model.call(&ITARQModel::ReadModel, file, TARQFileFormatType::MPS);
    const std::string name = model.get(&ITARQModel::get_ModelName);
    const double oldBound = model.ColUB(column);
    const double before = model.optimum();
    std::printf("%s: %.6f with %s up to %g\n", name.c_str(), before, column.c_str(), oldBound);
    model.ColUB(column) = bound;
    const double after = model.optimum();
    std::printf("%s: %.6f with %s up to %g, a difference of %.6f\n", name.c_str(), after, column.c_str(), bound,
                after - before);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s FILE COLUMN BOUND\n", argv[0]);
        return 1;
    }
    return exitCode([&] { compare(argv[1], argv[2], std::atof(argv[3])); });
}
