// The failures that several of AMPL's imports and runs have in common.
#pragma once

#include <string_view>

#include "tarq/frame/status.h"

namespace tarq::ampl {

/// How the failures of checkInputFile name what several of them look for.
inline constexpr std::string_view aboutTranslator = "AMPL.EXE";
inline constexpr std::string_view aboutModelFile = ".MOD file";

inline Outcome ioError() { return {status::temporaryFile, "AMPL I/O Error."}; }
inline Outcome interfaceFailure() { return {status::externalProcess, "General failure in AMPL interface."}; }
inline Outcome notStarted() { return {status::externalProcess, "Can't start AMPL.EXE process."}; }
inline Outcome noCommandFile() { return {status::temporaryFile, "Can't create AMPL command file."}; }
inline Outcome nonlinearModel() {
    return {status::modelRejected, "AMPL model is nonlinear or has more than one objective function."};
}

}  // namespace tarq::ampl
