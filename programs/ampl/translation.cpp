#include "translation.h"

#include <utility>

namespace tarq::translator {

Translation::Translation(const AssembledText& model, const AssembledText& data, std::set<int> displayLines)
    : model_(model), data_(data), listing_(model, data, std::move(displayLines)) {}

void Translation::check(int failed) const {
    if (failed != 0) throw Failure(listing_.failureText());
}

void Translation::read() {
    if (model_.empty()) throw Failure(data_.placeOf(1), "there is data, but no model");
    listing_.beginStep();
    model_.write();
    check(glp_mpl_read_model(translator_.get(), model_.path().c_str(), 1));
    if (data_.empty()) return;
    data_.write();
    check(glp_mpl_read_data(translator_.get(), data_.path().c_str()));
}

void Translation::generate() {
    listing_.beginStep();
    const int failed = glp_mpl_generate(translator_.get(), nullptr);
    listing_.endOutput();
    check(failed);
    glp_mpl_build_prob(translator_.get(), problem_.get());
}

LinearProblem Translation::problem(const FamilyNames& objectives, bool withNames) const {
    return copyOf(problem_.get(), objectives, withNames);
}

void Translation::showSolution(const LinearProblem& problem, const Solution& solution, const std::string& folder) {
    listing_.beginStep();
    check(putSolution(problem_.get(), problem, solution, folder));
    const int failed = glp_mpl_postsolve(translator_.get(), problem_.get(), GLP_IPT);
    listing_.endOutput();
    check(failed);
}

}  // namespace tarq::translator
