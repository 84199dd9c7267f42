// Status: the 32-bit result of every operation, and Outcome: a status with the words that explain a failure.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "frame/export.h"

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

/// The statuses of the component, under one name each.
namespace status {

inline constexpr Status ok{};

inline constexpr Status notImplemented{0x80004001};
inline constexpr Status wrongClass{0x80004002};
inline constexpr Status nullPointer{0x80004003};
inline constexpr Status generalFailure{0x80004005};
inline constexpr Status unknownMember{0x80020003};
inline constexpr Status unknownParameterName{0x80020004};
inline constexpr Status argumentType{0x80020005};
inline constexpr Status unknownName{0x80020006};
inline constexpr Status argumentCount{0x8002000E};
inline constexpr Status noAggregation{0x80040110};
inline constexpr Status classNotInLibrary{0x80040111};
inline constexpr Status classNotAvailable{0x80040154};
inline constexpr Status noConnection{0x80040200};
inline constexpr Status cannotConnect{0x80040202};
inline constexpr Status outOfMemory{0x8007000E};
inline constexpr Status badArgument{0x80070057};

inline constexpr Status componentFailure{0x80041000};
inline constexpr Status libraryNotFound{0x80041011};
inline constexpr Status entryPointsMissing{0x80041012};
inline constexpr Status engineMemory{0x80041013};
inline constexpr Status unknownParameter{0x80041015};
inline constexpr Status wrongKind{0x80041016};
inline constexpr Status valueOutOfRange{0x80041017};
inline constexpr Status textTooLong{0x80041018};
inline constexpr Status boundOrder{0x80041019};
inline constexpr Status indexOutOfRange{0x8004101A};
inline constexpr Status externalProcess{0x8004101D};
inline constexpr Status modelRejected{0x80041021};
inline constexpr Status temporaryFile{0x80041023};
inline constexpr Status crucialError{0x80041024};
inline constexpr Status badColumnName{0x80041026};
inline constexpr Status propertyPage{0x80041027};
inline constexpr Status fileAccess{0x80041028};
inline constexpr Status profileFailure{0x80041029};
inline constexpr Status syntaxError{0x8004102A};
inline constexpr Status badRowName{0x8004102B};
inline constexpr Status fieldEmpty{0x8004102C};
inline constexpr Status fieldNotNumeric{0x8004102D};
inline constexpr Status engineSetup{0x8004102E};
inline constexpr Status fileNameRejected{0x8004102F};
inline constexpr Status fileNotReachable{0x80041030};
inline constexpr Status invalidArgument{0x80041031};
inline constexpr Status wrongState{0x80041032};
inline constexpr Status notInitialized{0x80041034};
inline constexpr Status elementOutOfRange{0x80041035};
inline constexpr Status languageInterface{0x80041036};

inline constexpr Status resourceLimit{0x00042001};
inline constexpr Status stoppedAtBreak{0x00042002};
inline constexpr Status noLpSolution{0x00042003};
inline constexpr Status noIpSolution{0x00042004};
inline constexpr Status noSuchNonzero{0x00042007};
inline constexpr Status arrayCondition{0x0004200A};

/// Says in a few words what a status means; "unknown status" for a value that the component never returns.
TARQ_API std::string_view meaning(Status status);

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
