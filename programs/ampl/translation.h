// Translation: one model and its data in GLPK's translator, from the text to the problem and back to its displays.
#pragma once

#include <glpk.h>

#include <memory>
#include <set>
#include <string>

#include "assembledtext.h"
#include "glpkproblem.h"
#include "linearproblem.h"
#include "listing.h"

namespace tarq::translator {

/// Steps are taken in the order of declaration. Each throws a Failure with GLPK's words and the place in the user's
/// file.
class Translation {
public:
    /// Both texts outlive the translation; `displayLines` as for a Listing.
    Translation(const AssembledText& model, const AssembledText& data, std::set<int> displayLines);

    void read();
    /// Makes columns and rows and shows the displays that stand before a `solve`.
    void generate();
    /// The problem that was made; the arguments are those of copyOf.
    [[nodiscard]] LinearProblem problem(const FamilyNames& objectives, bool withNames) const;
    /// Shows the displays behind the `solve` with the values of a solution. `folder` takes a temporary file.
    void showSolution(const LinearProblem& problem, const Solution& solution, const std::string& folder);

private:
    void check(int failed) const;

    const AssembledText& model_;
    const AssembledText& data_;
    Listing listing_;
    std::unique_ptr<glp_tran, decltype(&glp_mpl_free_wksp)> translator_{glp_mpl_alloc_wksp(), &glp_mpl_free_wksp};
    std::unique_ptr<glp_prob, decltype(&glp_delete_prob)> problem_{glp_create_prob(), &glp_delete_prob};
};

}  // namespace tarq::translator
