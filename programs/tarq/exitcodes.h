// The exit codes of the command. Scripts rely on them.
#pragma once

namespace tarq::command {

enum class ExitCode : int {
    Success = 0,        ///< an optimal solution was found, or the job was done
    WrongUsage = 1,     ///< an unknown option, an extension that tells no format, a refused parameter
    InputRejected = 2,  ///< a file could not be read, understood or written
    NoSolution = 3,     ///< infeasible, unbounded or without an integer solution
    EndedEarly = 4,     ///< ended at a limit or stopped by the user
    EngineFailed = 5,   ///< the engine is missing or failed
};

}  // namespace tarq::command
