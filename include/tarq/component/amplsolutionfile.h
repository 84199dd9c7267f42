// What the component offers its own AMPL driver.
#pragma once

#include <string>

#include "tarq/frame/export.h"
#include "tarq/frame/status.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {

/// Writes what the model's latest run has left into STUB.sol, for AMPL: the message, the duals of the rows (the change
/// of the objective for a unit of right-hand side), the values of the columns, the basis, and the code for the run's
/// end. Without a solution there are no values. temporaryFile when there is no stub, it isn't this model's, or the file
/// can't be written.
[[nodiscard]] TARQ_API Status writeAmplSolutionFile(ITARQModel& model, const std::string& stubName,
                                                    const std::string& message);

}  // namespace tarq
