/* The C interface of a solver engine: the operations that a library must export, under these names, to serve the
 * component as its engine, and the values that cross this border as numbers.
 *
 * Strings are 8-bit and null-terminated, indices are 1-based, and every array of n + m entries holds the n columns
 * first and the m rows behind them. An operation returns a TarqResult; all enumerations travel as int32_t. A value that
 * isn't listed in its enumeration may be used where that is said.
 *
 * Threads: one library works on one run at a time, with one model and one set of parameters. A run belongs to the
 * thread that starts it, by Initialize or AllocateMemory, until that thread calls FreeMemory. All operations of the run
 * come from this thread, and the callback is called on it. A thread that wants to start a run while another one has its
 * own waits in the start for its turn; one that has a run already is refused. An operation of a thread that has no run
 * answers with TarqGeneralError and changes nothing, with one exception: GetParameter for xversn is always served. A
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

/* The operations, each once, for a macro that takes a name: the 19 that every engine is asked for, and what is beyond
 * them. Tables of names and of slots follow from these lists; a slot's type is that of the declaration. */
/* clang-format off */
#define TARQ_ENGINE_OPERATIONS(OPERATION)                                                                       \
    OPERATION(AllocateMemory) OPERATION(Break) OPERATION(FreeMemory) OPERATION(GetDim) OPERATION(GetIPSolution) \
    OPERATION(GetLPSolution) OPERATION(GetMaxDim) OPERATION(GetParameter) OPERATION(Initialize)                 \
    OPERATION(InitModel) OPERATION(NewModel) OPERATION(Optimize) OPERATION(OptimizeIP) OPERATION(OptimizeLP)    \
    OPERATION(PutModel) OPERATION(SetCallback) OPERATION(SetMaxIPDim) OPERATION(SetMaxLPDim)                    \
    OPERATION(SetParameter)
#define TARQ_ENGINE_EXTENSIONS(OPERATION) OPERATION(AbandonRun)
/* clang-format on */

/* What an operation returns. Success is all that the start, the parameters and the solutions are asked for; PutModel
 * and the two stages say what their results mean. */
enum TarqResult {
    TarqSuccess = 0,
    TarqOutOfMemory = 1,  /* of PutModel */
    TarqLimitReached = 1, /* of a stage: a resource limit ended it */
    TarqInputError = 2,
    TarqOutputError = 3,
    TarqNumericError = 4,
    TarqGeneralError = 5,
    TarqInternalError = 6,
    TarqStoppedAtBreak = 999 /* of a stage: it ended at a break, or a stop was asked for */
};

/* The flag of SetCallback. */
enum TarqModelKind { TarqModelWithIntegers = 0, TarqContinuousModel = 1 };

/* The type of a column in PutModel. */
enum TarqColumnType { TarqContinuousColumn = 0, TarqIntegerColumn = 1, TarqBinaryColumn = 2 };

/* The frequency that means no break, of OptimizeLP and of OptimizeIP. */
enum TarqBreakFrequency { TarqNoIterationBreak = 0, TarqNoNodeBreak = -1 };

/* What OptimizeLP has found out about the model. */
enum TarqLPStatus { TarqLPSolvable = 0, TarqLPInfeasible = 1, TarqLPUnbounded = 2 };

/* Which limit ended the LP, as xertyp tells it; 0 and any other value: another one. */
enum TarqLPLimit {
    TarqLPOtherLimit = 0,
    TarqLPIterationLimit = 1,    /* xmiter */
    TarqLPTimeLimit = 2,         /* xmxtlp */
    TarqLPNodeIterationLimit = 4 /* xmitip */
};

/* What GetLPSolution delivers; any other value is an undefined status. */
enum TarqLPSolution {
    TarqLPSolutionOptimal = 0,
    TarqLPSolutionInfeasible = 1,
    TarqLPSolutionUnbounded = 2,
    TarqLPSolutionPrimalFeasible = 3, /* but not proved optimal */
    TarqLPSolutionDualFeasible = 4,   /* but not primal feasible */
    TarqLPSolutionNoneFeasible = 5,   /* infeasible, like 1 */
    TarqLPSolutionUndefined = 6       /* no point, or one that is neither primal nor dual feasible */
};

/* Why OptimizeIP ended with TarqLimitReached; 0 and any other value: another limit. */
enum TarqIPStopReason {
    TarqIPOtherLimit = 0,
    TarqIPTimeLimit = 3,      /* xmxmin */
    TarqIPNodeLimit = 6,      /* xmxnod */
    TarqIPNodeBufferFull = 7, /* xnodbf */
    TarqIPDiskFull = 9,       /* xmxdsk */
    TarqIPSolutionLimit = 10  /* xmxint; to the component another limit */
};

/* What GetIPSolution delivers; any other value is an undefined status. */
enum TarqIPSolution { TarqIPSolutionOptimal = 0, TarqIPSolutionSuboptimal = 3, TarqIPSolutionNone = 4 };

/* Where a column or row of a solution stands. */
enum TarqBasisStatus {
    TarqBasisUndefined = 0,
    TarqBasic = 1,
    TarqAtLowerBound = 2,
    TarqAtUpperBound = 3,
    TarqFixed = 4,
    TarqSuperbasic = 5
};

/* The room in characters, with the terminating null, that GetParameter may count on. */
enum TarqTextSizes { TarqTextSize = 255, TarqLimitTextSize = 20 /* for xertyp */ };

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

/* Writes the current value as text with a decimal point into a buffer of at least TarqTextSize characters (for xertyp
 * TarqLimitTextSize). Serves the result values xnodes, xipfun, xcmgap, xctime, xiptim, xiter, xlpfun, xlptim, xzbest,
 * xzlbnd, xzubnd, xnints, xnif and xsipti (xzbest, xzlbnd and xzubnd in minimization form), and xline1, xline2 (the two
 * lines of the last message), xertyp (a TarqLPLimit) and xversn. */
TARQ_ENGINE_API int32_t GetParameter(const char* name, char* buffer);

/* Registers the callback; flag is a TarqModelKind. May be left out. */
TARQ_ENGINE_API int32_t SetCallback(TarqCallback callback, int32_t flag);

/* Takes over a model; the arrays belong to the caller and live only for the call. A bound of at least `infinity` in
 * absolute value is none. type: a TarqColumnType each. TarqOutOfMemory and TarqInputError are failures, anything else
 * means accepted. */
TARQ_ENGINE_API int32_t PutModel(int32_t zero, double infinity, int32_t rows, int32_t columns, int32_t nonzeros,
                                 const int32_t* rowIndices, const int32_t* columnIndices, const double* values,
                                 const double* lower, const double* upper, const double* cost, const int32_t* type);

/* Solves the LP. iterationFrequency: break after that many iterations, or TarqNoIterationBreak. lpStatus: a
 * TarqLPStatus. The outputs may be written at any time during the call, to show progress; other threads of the client
 * may read them meanwhile, so they are best written as atomic values (relaxed). TarqSuccess, TarqLimitReached and
 * TarqStoppedAtBreak leave something to fetch; any other result is a failure. */
TARQ_ENGINE_API int32_t OptimizeLP(int32_t iterationFrequency, int32_t* iterations, int32_t* infeasibilities,
                                   int32_t* lpStatus, double* objective, double* sumOfInfeasibilities);

/* Delivers the LP solution. status: a TarqLPSolution. reducedCosts holds the duals in its row part. basisStatus: a
 * TarqBasisStatus each. */
TARQ_ENGINE_API int32_t GetLPSolution(int32_t* status, double* objective, double* values, double* reducedCosts,
                                      int32_t* basisStatus);

/* Runs branch and bound on the model whose LP has been solved. nodeFrequency: break after that many nodes, or
 * TarqNoNodeBreak. stopReason, for TarqLimitReached: a TarqIPStopReason. Results and outputs as for OptimizeLP. */
TARQ_ENGINE_API int32_t OptimizeIP(int32_t nodeFrequency, int32_t* nodes, int32_t* integerSolutions,
                                   int32_t* stopReason, double* objective, double* bestPossible);

/* Delivers the best integer solution. status: a TarqIPSolution. The arrays are those of GetLPSolution. */
TARQ_ENGINE_API int32_t GetIPSolution(int32_t* status, double* objective, double* values, double* reducedCosts,
                                      int32_t* basisStatus);

/* Beyond the operations above, and may be left out: gives up the run of a thread that was stopped for good and won't
 * end it, so that others get their turn; a stage still under way ends at its next opportunity. `thread` is the system's
 * number of that thread: gettid() on Linux, GetCurrentThreadId() on Windows. From any thread, at any time.
 * TarqGeneralError when the thread has no run. */
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
