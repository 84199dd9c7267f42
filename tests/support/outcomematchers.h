// How every test shows what an operation answers, and the matchers that let it check an answer as a sentence.
//
// An answer is a Status or an Outcome; a Status counts as an Outcome without a description.
#pragma once

#include <gmock/gmock.h>

#include <ostream>
#include <string>

#include "tarq/frame/status.h"

namespace tarq {

inline void PrintTo(Status status, std::ostream* out) { *out << "0x" << std::hex << status.value() << std::dec; }

inline void PrintTo(const Outcome& outcome, std::ostream* out) {
    PrintTo(outcome.status(), out);
    *out << " \"" << outcome.description() << '"';
}

/// Status 0 and nothing to say about it.
MATCHER(succeeds, negation ? "isn't success" : "is success") {
    const Outcome outcome(arg);
    return outcome.isOk() && outcome.description().empty();
}

/// This status with exactly this description.
MATCHER_P2(failsWith, status, text,
           (negation ? "isn't " : "is ") + testing::PrintToString(Outcome(status, std::string(text)))) {
    const Outcome outcome(arg);
    return outcome.status() == status && outcome.description() == text;
}

}  // namespace tarq
