// Why a command ends without what it was asked for, and the exit codes on which scripts rely.
#pragma once

#include <tarq/tarq.h>

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace tarq::command {

enum class ExitCode : int {
    Success = 0,        ///< an optimal solution was found, or the job was done
    WrongUsage = 1,     ///< an unknown option, an extension that tells no format, a refused parameter
    InputRejected = 2,  ///< a file could not be read, understood or written
    NoSolution = 3,     ///< infeasible, unbounded or without an integer solution
    EndedEarly = 4,     ///< ended at a limit or stopped by the user
    EngineFailed = 5,   ///< the engine is missing or failed
};

/// Thrown by every step of a command that can't be done; whoever began the command shows it. The words for the user and
/// the exit code, and for programs the component's status and a file's line.
class Failure : public std::exception {
public:
    Failure(ExitCode failedWith, std::string words, Status told = {}, std::int32_t lineNumber = 0)
        : code(failedWith), text(std::move(words)), status(told), line(lineNumber) {}

    [[nodiscard]] const char* what() const noexcept override { return text.c_str(); }

    ExitCode code;
    std::string text;
    Status status;      ///< ok where the component wasn't asked
    std::int32_t line;  ///< 0 for none
};

/// What keeps a file from being read: `shown` is its name as the user may see it, `reason` the system's words.
[[nodiscard]] Failure cannotRead(std::string_view shown, std::string_view reason, Status status = {});
/// The same for writing, which is no failure of the component's.
[[nodiscard]] Failure cannotWrite(std::string_view shown, std::string_view reason);

}  // namespace tarq::command
