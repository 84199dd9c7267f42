/* The C interface of a solver engine: the operations that a library must export, under these names, to serve the
 * component as its engine.
 *
 * Strings are 8-bit and null-terminated, indices are 1-based, and every array of n + m entries holds the n columns
 * first and the m rows behind them. A result of 0 means success unless an operation says otherwise.
 *
 * Threads: one library works on one run at a time, with one model and one set of parameters. A run belongs to the
 * thread that starts it, by Initialize or AllocateMemory, until that thread calls FreeMemory. All operations of the run
 * come from this thread, and the callback is called on it. A thread that wants to start a run while another one has its
 * own waits in the start for its turn; one that has a run already is refused. An operation of a thread that has no run
 * answers with a general error (5) and changes nothing, with one exception: GetParameter for xversn is always served. A
 * thread that ends gives its run up.
 */
#ifndef TARQ_ENGINE_H
#define TARQ_ENGINE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(_WIN32)
#define TARQ_ENGINE_API __declspec(dllexport)
#else
#define TARQ_ENGINE_API __attribute__((visibility("default")))
#endif

/* Called by the engine at its break points, on the thread of OptimizeLP or OptimizeIP. It may call GetParameter and
 * SetParameter, and nothing else of the engine. */
typedef void (*TarqCallback)(void);

/* Releases all that the engine holds for the current run, its parameters too. Called once at the end of every run. */
TARQ_ENGINE_API int32_t FreeMemory(void);

/* Newer form of the start: takes care of memory and dimensions by itself. An engine that exports it is never asked for
 * AllocateMemory, GetMaxDim, SetMaxLPDim or InitModel. */
TARQ_ENGINE_API int32_t Initialize(void);

/* Older form of the start: reserves working memory, then reports and raises the maximal dimensions, then prepares an
 * empty model. The five last arguments of SetMaxLPDim are 0. */
TARQ_ENGINE_API int32_t AllocateMemory(int32_t megabytes);
TARQ_ENGINE_API int32_t GetMaxDim(int32_t* rows, int32_t* columns, int32_t* nonzeros);
TARQ_ENGINE_API int32_t SetMaxLPDim(int32_t rows, int32_t columns, int32_t nonzeros, int32_t reserved1,
                                    int32_t reserved2, int32_t reserved3, int32_t reserved4, int32_t reserved5);
TARQ_ENGINE_API int32_t InitModel(void);

/* Takes one assignment "name=value", string values in single quotes. Every parameter row must be accepted, and
 * "XCBSTP=1", the request to stop at the next opportunity. */
TARQ_ENGINE_API int32_t SetParameter(const char* assignment);

/* Writes the current value as text with a decimal point into a buffer of at least 255 characters ("xertyp": 20). Serves
 * the result values xnodes, xipfun, xcmgap, xctime, xiptim, xiter, xlpfun, xlptim, xzbest, xzlbnd, xzubnd, xnints,
 * xnif and xsipti (xzbest, xzlbnd and xzubnd in minimization form), and xline1, xline2 (the two lines of the last
 * message), xertyp (which limit ended the LP: 1 xmiter, 2 xmxtlp, 4 xmitip) and xversn. */
TARQ_ENGINE_API int32_t GetParameter(const char* name, char* buffer);

/* Registers the callback; flag is 1 for a model without integer columns and 0 for one with. May be left out. */
TARQ_ENGINE_API int32_t SetCallback(TarqCallback callback, int32_t flag);

/* Takes over a model; the arrays belong to the caller and live only for the call. A bound of at least `infinity` in
 * absolute value is none. type: 0 continuous, 1 integer, 2 binary. Result 1: not enough memory; 2: input error;
 * anything else: accepted. */
TARQ_ENGINE_API int32_t PutModel(int32_t zero, double infinity, int32_t rows, int32_t columns, int32_t nonzeros,
                                 const int32_t* rowIndices, const int32_t* columnIndices, const double* values,
                                 const double* lower, const double* upper, const double* cost, const int32_t* type);

/* Solves the LP. iterationFrequency: break after that many iterations, 0 for none. lpStatus: 1 infeasible,
 * 2 unbounded. The outputs may be written at any time during the call, to show progress; other threads of the client
 * may read them meanwhile, so they are best written as atomic values (relaxed).
 * Result 0: solved; 1: a resource limit ended it; 2: input error; 3: output error; 4: numeric error; 5: general error;
 * 6: internal error; 999: stopped at a break. */
TARQ_ENGINE_API int32_t OptimizeLP(int32_t iterationFrequency, int32_t* iterations, int32_t* infeasibilities,
                                   int32_t* lpStatus, double* objective, double* sumOfInfeasibilities);

/* Delivers the LP solution. status: 0 optimal, 1 and 5 infeasible, 2 unbounded, 3 only primal feasible, 4 only dual
 * feasible. reducedCosts holds the duals in its row part. basisStatus: 0 undefined, 1 basic, 2 at lower bound, 3 at
 * upper bound, 4 fixed, 5 superbasic. */
TARQ_ENGINE_API int32_t GetLPSolution(int32_t* status, double* objective, double* values, double* reducedCosts,
                                      int32_t* basisStatus);

/* Runs branch and bound on the model whose LP has been solved. nodeFrequency: break after that many nodes, -1 for
 * none. stopReason, for result 1: 3 time limit, 6 node limit, 7 node buffer, 9 disk space, other values other limits.
 * Results as for OptimizeLP. */
TARQ_ENGINE_API int32_t OptimizeIP(int32_t nodeFrequency, int32_t* nodes, int32_t* integerSolutions,
                                   int32_t* stopReason, double* objective, double* bestPossible);

/* Delivers the best integer solution. status: 0 optimal, 3 suboptimal, 4 no solution. */
TARQ_ENGINE_API int32_t GetIPSolution(int32_t* status, double* objective, double* values, double* reducedCosts,
                                      int32_t* basisStatus);

/* Beyond the operations above, and may be left out: gives up the run of a thread that was stopped for good and won't
 * end it, so that others get their turn; a stage still under way ends at its next opportunity. `thread` is the system's
 * number of that thread: gettid() on Linux, GetCurrentThreadId() on Windows. From any thread, at any time. A general
 * error (5) when the thread has no run. */
TARQ_ENGINE_API int32_t AbandonRun(int32_t thread);

/* Looked up with the others but never called; may be left out. */
TARQ_ENGINE_API int32_t Break(void);
TARQ_ENGINE_API int32_t GetDim(void);
TARQ_ENGINE_API int32_t NewModel(void);
TARQ_ENGINE_API int32_t Optimize(void);
TARQ_ENGINE_API int32_t SetMaxIPDim(void);

#ifdef __cplusplus
}
#endif

#endif
