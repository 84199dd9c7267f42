// The AMPL Solver Library without the macros that get into the way of other names. To be included last.
#pragma once

#include <ampl-netlib-solvers/nlp.h>

#undef exit
#undef filename
#undef real
