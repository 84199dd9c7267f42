// Files of the large model in formats that only peers read.
#pragma once

#include <string>

namespace filebench {

/// The model as a CPLEX LP file, which HiGHS writes at the first call.
std::string largeLpFile();

}  // namespace filebench
