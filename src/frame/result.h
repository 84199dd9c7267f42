// Failures in one line: Result, a value or the words of what kept it from being made, and the two ways to pass a
// failure on to the caller.
#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include "tarq/frame/status.h"

namespace tarq {

/// A value, or the Outcome that stands in its place: a failure, or a success with a message, which leaves outputs
/// unwritten too. Looking at the value of what isn't ok is undefined.
template <class T>
class [[nodiscard]] Result {
public:
    Result(T value) : value_(std::move(value)) {}
    Result(Outcome outcome) : outcome_(std::move(outcome)) {}
    Result(Status status) : outcome_(status) {}

    [[nodiscard]] bool isOk() const { return value_.has_value(); }
    /// Ok with a value, else why there is none.
    [[nodiscard]] const Outcome& outcome() const& { return outcome_; }
    [[nodiscard]] Outcome&& outcome() && { return std::move(outcome_); }

    [[nodiscard]] T& operator*() & { return *value_; }
    [[nodiscard]] const T& operator*() const& { return *value_; }
    [[nodiscard]] T&& operator*() && { return *std::move(value_); }
    [[nodiscard]] T* operator->() { return &*value_; }
    [[nodiscard]] const T* operator->() const { return &*value_; }

private:
    std::optional<T> value_;
    Outcome outcome_;
};

namespace detail {

/// A Status, an Outcome, or what a room has in their place; it tells by isOk() whether it is a failure.
template <class Failure>
Failure failureOf(Failure failure) {
    return failure;
}
template <class T>
Outcome failureOf(Result<T>&& result) {
    return std::move(result).outcome();
}

}  // namespace detail
}  // namespace tarq

// Only a macro can return from the function it stands in. The counter keeps names apart where one call holds another.
#define TARQ_JOIN_NAMES(left, right) left##right
#define TARQ_JOIN(left, right) TARQ_JOIN_NAMES(left, right)

/// TARQ_TRY(operation); returns from the function what `operation` (a Status, an Outcome or a Result) tells, if that
/// isn't ok.
#define TARQ_TRY(...) TARQ_TRY_NAMED(TARQ_JOIN(outcomeNumber, __COUNTER__), __VA_ARGS__)
#define TARQ_TRY_NAMED(outcome, ...) \
    if (auto outcome = ::tarq::detail::failureOf(__VA_ARGS__); !outcome.isOk()) return outcome

/// TARQ_ASSIGN(const auto place, operation); declares or sets the first from the value of `operation` (a Result), or
/// returns what it tells in the value's place.
#define TARQ_ASSIGN(target, ...) TARQ_ASSIGN_NAMED(TARQ_JOIN(resultNumber, __COUNTER__), target, __VA_ARGS__)
#define TARQ_ASSIGN_NAMED(result, target, ...)              \
    auto result = (__VA_ARGS__);                            \
    if (!result.isOk()) return std::move(result).outcome(); \
    target = *std::move(result)
