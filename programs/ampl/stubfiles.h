// Stub files: a problem as AMPL hands it to solvers.
#pragma once

#include <string>

#include "linearproblem.h"

namespace tarq::translator {

/// Which files of names go with a stub: the letters of the option `auxfiles`.
struct NameFiles {
    bool rows = false;
    bool columns = false;
};

/// Writes STUB.nl in the format's text form, and STUB.row and STUB.col as asked, for which the problem must have names.
/// Throws a Failure and leaves none of them when one can't be written.
void writeStub(const LinearProblem& problem, const std::string& stub, NameFiles names);

/// Takes the files of a stub away, those that are there.
void removeStub(const std::string& stub);

}  // namespace tarq::translator
