// Status: the 32-bit result of every operation, and Outcome: a status with the words that explain a failure.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "tarq/frame/export.h"

namespace tarq {

/// Result of an operation. 0 is success, the top bit marks a failure, any other value is success with a message: the
/// call reports a condition and leaves its outputs unwritten.
class [[nodiscard]] Status {
public:
    constexpr Status() = default;
    constexpr explicit Status(std::uint32_t value) : value_(value) {}

    [[nodiscard]] constexpr std::uint32_t value() const { return value_; }
    [[nodiscard]] constexpr bool isOk() const { return value_ == 0; }
    [[nodiscard]] constexpr bool failed() const { return (value_ & 0x8000'0000U) != 0; }

    friend constexpr bool operator==(Status, Status) = default;

private:
    std::uint32_t value_ = 0;
};

// Every status that the component returns: value, name and meaning. What has to do with all of them goes over this
// list.
// clang-format off
#define TARQ_STATUS_LIST(row) \
    row(0x00000000, ok, "success") \
    row(0x00000001, none, "none, or fewer than asked for") \
    row(0x80004001, notImplemented, "not implemented") \
    row(0x80004002, wrongClass, "object of the wrong class was passed") \
    row(0x80004003, nullPointer, "null output pointer") \
    row(0x80004005, generalFailure, "general failure") \
    row(0x80020003, unknownMember, "no such member") \
    row(0x80020004, unknownParameterName, "no such parameter, or one given twice") \
    row(0x80020005, argumentType, "argument of a type that can't be converted") \
    row(0x80020006, unknownName, "unknown name") \
    row(0x8002000E, argumentCount, "wrong number of arguments") \
    row(0x80040110, noAggregation, "object can't be made a part of another one") \
    row(0x80040111, classNotInLibrary, "class is not in this library") \
    row(0x80040154, classNotAvailable, "class is not available") \
    row(0x80040200, noConnection, "no such subscription or events") \
    row(0x80040202, cannotConnect, "object can't receive these events") \
    row(0x8007000E, outOfMemory, "out of memory") \
    row(0x80070057, badArgument, "bad argument") \
    row(0x80041000, componentFailure, "general component failure") \
    row(0x80041011, libraryNotFound, "engine or library file not found") \
    row(0x80041012, entryPointsMissing, "entry points of the library missing") \
    row(0x80041013, engineMemory, "engine memory") \
    row(0x80041015, unknownParameter, "unknown parameter name") \
    row(0x80041016, wrongKind, "argument of a wrong kind") \
    row(0x80041017, valueOutOfRange, "parameter value out of range") \
    row(0x80041018, textTooLong, "text argument too long") \
    row(0x80041019, boundOrder, "bound order violated") \
    row(0x8004101A, indexOutOfRange, "index out of range") \
    row(0x8004101D, externalProcess, "external process failed") \
    row(0x80041021, modelRejected, "modelling-language model rejected") \
    row(0x80041023, temporaryFile, "temporary file or AMPL interface failure") \
    row(0x80041024, crucialError, "engine reported a crucial error") \
    row(0x80041026, badColumnName, "bad column name") \
    row(0x80041027, propertyPage, "property page failure") \
    row(0x80041028, fileAccess, "file input or output failure") \
    row(0x80041029, profileFailure, "profile processing failure") \
    row(0x8004102A, syntaxError, "syntax error in a model file") \
    row(0x8004102B, badRowName, "bad row name") \
    row(0x8004102C, fieldEmpty, "empty field") \
    row(0x8004102D, fieldNotNumeric, "field is not numeric") \
    row(0x8004102E, engineSetup, "engine initialisation failed") \
    row(0x8004102F, fileNameRejected, "file name rejected") \
    row(0x80041030, fileNotReachable, "file not reachable") \
    row(0x80041031, invalidArgument, "invalid argument value") \
    row(0x80041032, wrongState, "object in the wrong state for this operation") \
    row(0x80041034, notInitialized, "object not initialised") \
    row(0x80041035, elementOutOfRange, "index-set element number out of range") \
    row(0x80041036, languageInterface, "modelling-language interface failure") \
    row(0x00042001, resourceLimit, "a resource limit ended the run") \
    row(0x00042002, stoppedAtBreak, "the run stopped at a break") \
    row(0x00042003, noLpSolution, "no LP solution available") \
    row(0x00042004, noIpSolution, "no IP solution available") \
    row(0x00042007, noSuchNonzero, "no such nonzero") \
    row(0x0004200A, arrayCondition, "array condition")
// clang-format on

/// The statuses of the component, under one name each.
namespace status {

#define TARQ_STATUS_CONSTANT(value, name, meaning) inline constexpr Status name{value};
TARQ_STATUS_LIST(TARQ_STATUS_CONSTANT)
#undef TARQ_STATUS_CONSTANT

struct Entry {
    Status status;
    std::string_view name;
    std::string_view meaning;
};

/// All of them, in the order of the list.
[[nodiscard]] TARQ_API std::span<const Entry> table();

/// Says in a few words what a status means; "unknown status" for a value that the component never returns.
[[nodiscard]] TARQ_API std::string_view meaning(Status status);

}  // namespace status

/// What a room returns that words its own failures without knowing the object that will raise them: the status and,
/// where there is one, its description.
class [[nodiscard]] Outcome {
public:
    Outcome() = default;
    Outcome(Status status) : status_(status) {}
    Outcome(Status status, std::string description) : status_(status), description_(std::move(description)) {}

    [[nodiscard]] Status status() const { return status_; }
    [[nodiscard]] const std::string& description() const { return description_; }
    [[nodiscard]] bool isOk() const { return status_.isOk(); }
    [[nodiscard]] bool failed() const { return status_.failed(); }

private:
    Status status_;
    std::string description_;
};

}  // namespace tarq
