// Matchers that let the tests of this folder read an Outcome as a sentence.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "frame/status.h"

namespace tarq {

MATCHER(succeeds, "is success") {
    *result_listener << arg.description();
    return arg.isOk();
}

MATCHER_P2(failsWith, status, text, "fails with \"" + std::string(text) + "\"") {
    *result_listener << "status " << std::hex << arg.status().value() << " \"" << arg.description() << '"';
    return arg.status() == status && arg.description() == text;
}

inline auto isOutOfRange() { return failsWith(status::valueOutOfRange, "Passed value is not within valid range."); }
inline auto isTooLong() { return failsWith(status::textTooLong, "Passed string is to long."); }
inline auto isWrongType() { return failsWith(status::wrongKind, "Variant argument is of wrong type."); }
inline auto isUnknownName() { return failsWith(status::unknownParameter, "Parameter name does not exist."); }

}  // namespace tarq
