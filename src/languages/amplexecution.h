// A whole run in AMPL's hands: the model's own text solves and shows, with the component's driver as the solver.
#pragma once

#include <string>

#include "languages/languagetarget.h"
#include "parameters/parametertable.h"
#include "tarq/frame/status.h"

namespace tarq {

/// The programs and the engine as a client has named them; see findProgram.
struct AmplLocations {
    std::string translator;
    std::string driver;
    std::string engine;
};

/// Lets the translator read `modelFile`, with the driver as its solver, the engine and the current parameters, and
/// keeps what it writes as the target's output; the model is left alone. An error in AMPL's text shows only there.
/// Waits without a limit; the temporary files are gone afterwards. fileNameRejected and fileNotReachable for files that
/// can't be read, temporaryFile for a temporary file that can't be made, externalProcess for a translator that can't be
/// started or read.
[[nodiscard]] Outcome executeAmplModel(const std::string& modelFile, const AmplLocations& locations,
                                       const ParameterTable& parameters, LanguageTarget& target);

}  // namespace tarq
