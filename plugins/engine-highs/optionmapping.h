// Which HiGHS options the parameters set, as data. docs/engine-highs.md tells the same to users.
#pragma once

#include "Highs.h"
#include "parametervalues.h"

namespace tarq::engine {

enum class Stage { Lp, Ip };

/// Sets the options of a stage on a Highs object: algorithm, presolve, scaling, pricing, tolerances, gaps. Limits that
/// depend on how far the run is (time, iterations, nodes, threads) are set by the stages themselves.
void applyOptions(const ParameterValues& parameters, Stage stage, Highs& highs);

/// Number of threads for a run: xnproc, at most as many as the machine offers.
[[nodiscard]] int wantedThreads(const ParameterValues& parameters);

/// Time limit in seconds of a parameter in minutes.
[[nodiscard]] double secondsOf(double minutes);

/// True when the client's objective is to be maximized.
[[nodiscard]] bool isMaximizing(const ParameterValues& parameters);

/// Integrality tolerance that an integer solution is checked against.
[[nodiscard]] double integralityTolerance(const ParameterValues& parameters);

}  // namespace tarq::engine
