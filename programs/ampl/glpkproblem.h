// A problem of GLPK's, copied out for a stub, and a solution put into it.
#pragma once

#include <glpk.h>

#include <set>
#include <string>

#include "linearproblem.h"

namespace tarq::translator {

using FamilyNames = std::set<std::string, std::less<>>;

/// The problem with its first objective. `objectives` are the names declared with minimize or maximize: GLPK makes rows
/// of them, which nothing else tells from constraints without bounds. Other objectives are left out.
[[nodiscard]] LinearProblem copyOf(glp_prob* source, const FamilyNames& objectives, bool withNames);

/// Puts a solution of `problem`, which is a copy of `target`, into GLPK's problem, by way of a file in `folder`: values
/// and what follows from them, row activities and reduced costs. Where the solution has no values or no duals they are
/// 0. Throws a Failure when the file can't be written. Returns 0 unless GLPK refuses a value.
[[nodiscard]] int putSolution(glp_prob* target, const LinearProblem& problem, const Solution& solution,
                              const std::string& folder);

}  // namespace tarq::translator
